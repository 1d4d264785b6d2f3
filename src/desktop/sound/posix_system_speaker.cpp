#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QBuffer>
#include <QCoreApplication>
#include <QMediaDevices>
#include <QThread>
#include <QTimer>
#include <mutex>
#include <span>

#include "desktop/sound/speaker.h"

namespace orvanta::sound {

namespace {

QtMessageHandler otherMessages = nullptr;

// A system without sound is no fault of the program, yet the toolkit tells of it on standard
// error, in part without a category that could be turned off. In this program only the sound
// works beside the first thread.
void dropMessagesOfTheSound(QtMsgType type, const QMessageLogContext& context,
                            const QString& text) {
    const QCoreApplication* application = QCoreApplication::instance();
    if (application && QThread::currentThread() == application->thread())
        otherMessages(type, context, text);
}

QAudioFormat playedFormat() {
    QAudioFormat format;
    format.setSampleRate(playedRate);
    format.setChannelCount(playedChannels);
    format.setSampleFormat(QAudioFormat::Int16);
    return format;
}

class SystemSpeaker : public Speaker {
public:
    SystemSpeaker() {
        // Past the end of a clip the system still has a part of it to play.
        constexpr int millisecondsOfRest = 1000;
        m_rest.setSingleShot(true);
        m_rest.setInterval(millisecondsOfRest);
        QObject::connect(&m_rest, &QTimer::timeout, [this] { stop(); });
    }
    ~SystemSpeaker() override { stop(); }
    SystemSpeaker(const SystemSpeaker&) = delete;
    SystemSpeaker& operator=(const SystemSpeaker&) = delete;

    void start(Samples samples) override {
        stop();
        const QAudioDevice device = QMediaDevices::defaultAudioOutput();
        if (device.isNull()) return;
        m_samples = std::move(samples);
        const auto bytes = std::as_bytes(std::span(m_samples));
        m_buffer.setData(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                                 static_cast<qsizetype>(bytes.size())));
        m_buffer.open(QIODevice::ReadOnly);
        // A new one each time: the buffer of one that is started again shrinks until it stutters.
        m_sink = std::make_unique<QAudioSink>(device, playedFormat());
        QObject::connect(m_sink.get(), &QAudioSink::stateChanged, &m_rest,
                         [this](QAudio::State state) { restAfter(state); });
        m_sink->start(&m_buffer);
    }

    void stop() override {
        m_rest.stop();
        // The end of a sink handles the events of its thread, and one of these may start the next
        // clip. So it comes last and finds nothing of the old clip in place.
        const std::unique_ptr<QAudioSink> sink = std::move(m_sink);
        if (!sink) return;
        sink->disconnect(&m_rest);
        sink->reset();  // silent at once; without this the system plays what it holds
        sink->stop();
        m_buffer.close();
    }

private:
    void restAfter(QAudio::State state) {
        if (state == QAudio::IdleState)
            m_rest.start();
        else
            m_rest.stop();
    }

    Samples m_samples;  // what the buffer reads from
    QBuffer m_buffer;
    std::unique_ptr<QAudioSink> m_sink;
    QTimer m_rest;
};

}  // namespace

std::unique_ptr<Speaker> makeSystemSpeaker() {
    static std::once_flag once;
    std::call_once(once, [] {
        otherMessages = qInstallMessageHandler(nullptr);
        qInstallMessageHandler(dropMessagesOfTheSound);
    });
    return std::make_unique<SystemSpeaker>();
}

}  // namespace orvanta::sound
