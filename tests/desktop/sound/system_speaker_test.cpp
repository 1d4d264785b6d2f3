#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSemaphore>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "desktop/sound/sound_player.h"
#include "movie_writer.h"
#include "sound_server.h"

// The player and a real sound server. What comes out of it is recorded and looked at.

namespace orvanta::sound::test {

namespace {

constexpr int patience = 20000;  // milliseconds
constexpr double quiet = 30;
constexpr double firstPitch = 440, secondPitch = 880;

bool awaitHearing(const Recording& recording, double pitch) {
    return QTest::qWaitFor([&] { return isHeard(recording, pitch); }, patience);
}

bool awaitMore(const Recording& recording, double seconds) {
    const double until = recording.seconds() + seconds;
    return QTest::qWaitFor([&] { return recording.seconds() >= until; }, patience);
}

Bytes bytesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    const QByteArray bytes = file.readAll();
    return {bytes.begin(), bytes.end()};
}

class RealSound : public testing::Test {
protected:
    static void SetUpTestSuite() { server = new SoundServer; }
    static void TearDownTestSuite() { delete std::exchange(server, nullptr); }

    void SetUp() override { ASSERT_TRUE(server->isReady()); }

    void playTone(double pitch) {
        const Form form{Coding::Pcm16, playedRate, playedChannels};
        const Samples samples = tone(pitch, form.rate, form.channels, 20);
        const Bytes movie = MovieWriter().defineSound(1, form, samples).startSound(1).file();
        const QString path = m_folder.filePath(QString::number(pitch));
        writeMovie(path, movie);
        play(*player, path);
    }

    static SoundServer* server;
    std::unique_ptr<desktop::DesktopPlayer> player = desktop::makePlayer();

private:
    QTemporaryDir m_folder;
};

/// Tells when it goes to the system's sound.
class AnnouncingSpeaker : public Speaker {
public:
    AnnouncingSpeaker(std::unique_ptr<Speaker> speaker, QSemaphore& starting)
        : m_speaker(std::move(speaker)), m_starting(starting) {}

    void start(Samples samples) override {
        m_starting.release();
        m_speaker->start(std::move(samples));
    }
    void stop() override { m_speaker->stop(); }

private:
    std::unique_ptr<Speaker> m_speaker;
    QSemaphore& m_starting;
};

SoundServer* RealSound::server = nullptr;

}  // namespace

TEST_F(RealSound, SpeaksAClipToItsEnd) {
    const QString clip = QStringLiteral(ORVANTA_SOUNDS "/mp_S1.swf");
    const Samples played = samplesOfMovie(bytesOf(clip));
    const Samples another = samplesOfMovie(bytesOf(QStringLiteral(ORVANTA_SOUNDS "/mp_S2.swf")));
    ASSERT_FALSE(played.empty() || another.empty());
    const Recording recording(*server);
    play(*player, clip);
    const double length = static_cast<double>(played.size()) / playedChannels / playedRate;
    ASSERT_TRUE(awaitMore(recording, length + 2));
    EXPECT_GT(likeness(recording.samples(), played), 0.9);
    EXPECT_LT(likeness(recording.samples(), another), 0.6);
}

TEST_F(RealSound, ReplacesAClipByTheNext) {
    const Recording recording(*server);
    playTone(firstPitch);
    ASSERT_TRUE(awaitHearing(recording, firstPitch));
    playTone(secondPitch);
    ASSERT_TRUE(awaitHearing(recording, secondPitch));
    const std::vector<Moment> moments = momentsOf(recording.samples());
    const auto isSecond = [](const Moment& moment) { return sounds(moment, secondPitch); };
    const auto isFirst = [](const Moment& moment) { return sounds(moment, firstPitch); };
    EXPECT_TRUE(std::none_of(std::ranges::find_if(moments, isSecond), moments.end(), isFirst));
}

TEST_F(RealSound, IsSilentOnceAClipIsStopped) {
    const Recording recording(*server);
    playTone(firstPitch);
    ASSERT_TRUE(awaitHearing(recording, firstPitch));
    play(*player, QStringLiteral("STOP"));
    ASSERT_TRUE(awaitMore(recording, 1.5));
    const std::vector<Moment> moments = momentsOf(recording.samples());
    constexpr std::ptrdiff_t momentsOfASecond = 20;
    EXPECT_TRUE(std::all_of(moments.end() - momentsOfASecond, moments.end(),
                            [](const Moment& moment) { return moment.loudness < quiet; }));
}

// The end of a clip may handle the events of its thread, and the next clip be one of them.
TEST_F(RealSound, PlaysAClipThatBeginsAmidTheEndOfAnother) {
    const auto speaker = makeSystemSpeaker();
    const Recording recording(*server);
    speaker->start(tone(firstPitch, playedRate, playedChannels, 20));
    ASSERT_TRUE(awaitHearing(recording, firstPitch));
    QTimer::singleShot(0,
                       [&] { speaker->start(tone(secondPitch, playedRate, playedChannels, 20)); });
    speaker->stop();
    EXPECT_TRUE(awaitHearing(recording, secondPitch));
}

// The last one: the thread that hangs is left behind.
TEST_F(RealSound, ThatHangsHoldsUpNobody) {
    QSemaphore starting;
    const auto announcing = [&] {
        return std::make_unique<AnnouncingSpeaker>(makeSystemSpeaker(), starting);
    };
    player = std::make_unique<SoundPlayer>([&] { return SoundModule{samplesOfMovie, announcing}; });
    server->freeze();
    QElapsedTimer timer;
    timer.start();
    playTone(firstPitch);
    ASSERT_TRUE(starting.tryAcquire(1, patience));
    EXPECT_FALSE(player->end());
    EXPECT_LT(timer.elapsed(), 5000);
}

}  // namespace orvanta::sound::test

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    const int result = RUN_ALL_TESTS();
    std::fflush(nullptr);
    std::_Exit(result);  // as the program does where the sound hangs
}
