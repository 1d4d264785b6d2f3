#include <windows.h>
// Needs the former.
#include <mmsystem.h>

#include <QTimer>
#include <chrono>

#include "desktop/sound/speaker.h"

namespace orvanta::sound {

namespace {

WAVEFORMATEX playedFormat() {
    WAVEFORMATEX format{};
    format.wFormatTag = WAVE_FORMAT_PCM;
    format.nChannels = playedChannels;
    format.nSamplesPerSec = playedRate;
    format.wBitsPerSample = 8 * sizeof(Samples::value_type);
    format.nBlockAlign = playedChannels * sizeof(Samples::value_type);
    format.nAvgBytesPerSec = format.nSamplesPerSec * format.nBlockAlign;
    return format;
}

std::chrono::milliseconds lengthOf(const Samples& samples) {
    constexpr std::size_t samplesOfASecond = std::size_t{playedRate} * playedChannels;
    return std::chrono::milliseconds(samples.size() * 1000 / samplesOfASecond);
}

/// Windows' own wave output: it takes a clip as a whole, and reads it from where it lies.
class WaveSpeaker : public Speaker {
public:
    WaveSpeaker() {
        m_rest.setSingleShot(true);
        QObject::connect(&m_rest, &QTimer::timeout, [this] { stop(); });
    }
    ~WaveSpeaker() override { stop(); }
    WaveSpeaker(const WaveSpeaker&) = delete;
    WaveSpeaker& operator=(const WaveSpeaker&) = delete;

    void start(Samples samples) override {
        stop();
        const WAVEFORMATEX format = playedFormat();
        if (waveOutOpen(&m_output, WAVE_MAPPER, &format, 0, 0, CALLBACK_NULL) != MMSYSERR_NOERROR) {
            m_output = nullptr;
            return;
        }
        m_samples = std::move(samples);
        m_clip = {};
        m_clip.lpData = reinterpret_cast<char*>(m_samples.data());
        m_clip.dwBufferLength = static_cast<DWORD>(m_samples.size() * sizeof(m_samples.front()));
        waveOutPrepareHeader(m_output, &m_clip, sizeof m_clip);
        waveOutWrite(m_output, &m_clip, sizeof m_clip);
        // An output that stays open keeps the computer from going to sleep.
        constexpr std::chrono::seconds latePart{1};  // the system has some of the clip left then
        m_rest.start(lengthOf(m_samples) + latePart);
    }

    void stop() override {
        m_rest.stop();
        if (!m_output) return;
        waveOutReset(m_output);  // silent at once, and the clip is given back
        waveOutUnprepareHeader(m_output, &m_clip, sizeof m_clip);
        waveOutClose(m_output);
        m_output = nullptr;
    }

private:
    Samples m_samples;  // what the output reads from
    WAVEHDR m_clip{};
    HWAVEOUT m_output = nullptr;  // null while nothing plays
    QTimer m_rest;
};

}  // namespace

std::unique_ptr<Speaker> makeSystemSpeaker() { return std::make_unique<WaveSpeaker>(); }

}  // namespace orvanta::sound
