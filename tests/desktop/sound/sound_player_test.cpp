#include "desktop/sound/sound_player.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QFile>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThread>
#include <atomic>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "movie_writer.h"
#include "view/windows1252.h"

namespace orvanta::sound::test {

namespace {

using Calls = std::vector<std::string>;

/// What a speaker was told. A call may be held, as a sound server that hangs does.
class SpeakerLog {
public:
    void add(const std::string& call) {
        const std::scoped_lock lock(m_mutex);
        m_calls.push_back(call);
        m_threads.insert(QThread::currentThread());
        m_added.release();
    }

    /// The calls so far, once there are as many as this.
    Calls await(int count) {
        constexpr int milliseconds = 10000;
        EXPECT_TRUE(m_added.tryAcquire(count - m_awaited, milliseconds));
        m_awaited = count;
        const std::scoped_lock lock(m_mutex);
        return m_calls;
    }

    std::set<QThread*> threads() {
        const std::scoped_lock lock(m_mutex);
        return m_threads;
    }

    // Set before the player is used.
    bool holdsStarts = false;
    bool handlesEventsAtStops = false;  // once it is let go, as the system's sound does
    QSemaphore letGo;

private:
    std::mutex m_mutex;
    Calls m_calls;
    std::set<QThread*> m_threads;
    QSemaphore m_added;
    int m_awaited = 0;
};

class RecordingSpeaker : public Speaker {
public:
    explicit RecordingSpeaker(SpeakerLog& log) : m_log(log) { m_log.add("made"); }
    ~RecordingSpeaker() override { m_log.add("deleted"); }
    RecordingSpeaker(const RecordingSpeaker&) = delete;
    RecordingSpeaker& operator=(const RecordingSpeaker&) = delete;

    void start(Samples samples) override {
        m_log.add("start " + std::to_string(samples.size()));
        if (m_log.holdsStarts) m_log.letGo.acquire();
    }
    void stop() override {
        m_log.add("stop");
        if (!m_log.handlesEventsAtStops) return;
        m_log.letGo.acquire();
        QCoreApplication::processEvents();
        m_log.add("stopped");
    }

private:
    SpeakerLog& m_log;
};

/// A folder of clips and a player whose speaker only keeps a log. A clip is known by how many
/// samples it has.
class SoundPlayerTest : public testing::Test {
protected:
    std::string file(const std::string& name, const Bytes& bytes) {
        std::string path = folder() + '/' + name;
        QFile written(QString::fromStdString(utf8From1252(path)));
        EXPECT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(reinterpret_cast<const char*>(bytes.data()),
                      static_cast<qint64>(bytes.size()));
        return path;
    }

    std::string clip(const std::string& name, std::size_t samples) {
        const Form form{Coding::Pcm16, playedRate, playedChannels};
        return file(name, MovieWriter().stream(form, Samples(samples, 1000)).file());
    }

    std::string folder() const { return windows1252From(m_folder.path().toStdString()); }

    void play(const std::string& path) {
        player.setMovie(path);
        player.play();
    }

    SpeakerLog log;
    std::atomic<int> modulesLoaded = 0;
    SoundPlayer player{[this] {
        ++modulesLoaded;
        return SoundModule{samplesOfMovie,
                           [this] { return std::make_unique<RecordingSpeaker>(log); }};
    }};

private:
    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(SoundPlayerTest, PlaysAClip) {
    play(clip("mp_S1.swf", 100));
    EXPECT_EQ(log.await(2), (Calls{"made", "start 100"}));
}

TEST_F(SoundPlayerTest, PlaysAClipAgain) {
    const std::string path = clip("mp_S1.swf", 100);
    play(path);
    log.await(2);
    player.play();
    EXPECT_EQ(log.await(4), (Calls{"made", "start 100", "stop", "start 100"}));
}

TEST_F(SoundPlayerTest, WaitsForPlay) {
    player.setMovie(clip("mp_S1.swf", 100));
    play(clip("mp_S2.swf", 200));
    EXPECT_EQ(log.await(2), (Calls{"made", "start 200"}));
}

TEST_F(SoundPlayerTest, StopsAClipBeforeTheNext) {
    play(clip("mp_S1.swf", 100));
    log.await(2);
    play(clip("mp_S2.swf", 200));
    EXPECT_EQ(log.await(4), (Calls{"made", "start 100", "stop", "start 200"}));
}

TEST_F(SoundPlayerTest, IsSilentForANameThatIsNoFile) {
    play(clip("mp_S1.swf", 100));
    log.await(2);
    play("STOP");
    EXPECT_EQ(log.await(3), (Calls{"made", "start 100", "stop"}));
}

TEST_F(SoundPlayerTest, IsSilentForAMissingClip) {
    play(clip("mp_S1.swf", 100));
    log.await(2);
    play(folder() + "/mp_S2.swf");
    EXPECT_EQ(log.await(3), (Calls{"made", "start 100", "stop"}));
}

TEST_F(SoundPlayerTest, IsSilentForABrokenClip) {
    play(clip("mp_S1.swf", 100));
    log.await(2);
    play(file("mp_S2.swf", Bytes(500, 'x')));
    EXPECT_EQ(log.await(3), (Calls{"made", "start 100", "stop"}));
}

TEST_F(SoundPlayerTest, IsSilentForAFolder) {
    play(clip("mp_S1.swf", 100));
    log.await(2);
    play(folder());
    EXPECT_EQ(log.await(3), (Calls{"made", "start 100", "stop"}));
}

TEST_F(SoundPlayerTest, DoesNotWaitAtAPipe) {
    const std::string pipe = folder() + "/mp_S1.swf";
    ASSERT_EQ(::mkfifo(utf8From1252(pipe).c_str(), 0600), 0);
    play(pipe);
    play(clip("mp_S2.swf", 100));
    EXPECT_EQ(log.await(2), (Calls{"made", "start 100"}));
}

TEST_F(SoundPlayerTest, IsSilentForAFileBeyondTheSizeOfAMovie) {
    const std::string path = clip("mp_S2.swf", 200);
    QFile grown(QString::fromStdString(path));
    ASSERT_TRUE(grown.resize(static_cast<qint64>(maximumMovieSize) + 1));
    play(clip("mp_S1.swf", 100));
    log.await(2);
    play(path);
    EXPECT_EQ(log.await(3), (Calls{"made", "start 100", "stop"}));
}

TEST_F(SoundPlayerTest, FindsAClipInAFolderWithAnUmlaut) {
    play(clip("K\xF6ln.swf", 100));
    EXPECT_EQ(log.await(2), (Calls{"made", "start 100"}));
}

TEST_F(SoundPlayerTest, MakesNoSpeakerForSilence) {
    play("STOP");
    play(clip("mp_S1.swf", 100));
    EXPECT_EQ(log.await(2), (Calls{"made", "start 100"}));
}

TEST_F(SoundPlayerTest, LoadsItsModuleWithTheFirstClipAlone) {
    play("STOP");
    play(folder());
    play(clip("mp_S1.swf", 100));
    log.await(2);
    EXPECT_EQ(modulesLoaded, 1);
    play(clip("mp_S2.swf", 200));
    EXPECT_EQ(log.await(4), (Calls{"made", "start 100", "stop", "start 200"}));
    EXPECT_EQ(modulesLoaded, 1);
}

TEST_F(SoundPlayerTest, IsSilentWithoutItsModule) {
    QSemaphore loaded;
    SoundPlayer silent([&] {
        loaded.release();
        return SoundModule();
    });
    silent.setMovie(clip("mp_S1.swf", 100));
    silent.play();
    EXPECT_TRUE(loaded.tryAcquire(1, 10000));
    EXPECT_TRUE(silent.end());
}

TEST_F(SoundPlayerTest, PassesByWhatWasReplacedBeforeItsTurn) {
    log.holdsStarts = true;
    play(clip("mp_S1.swf", 100));
    log.await(2);
    play(clip("mp_S2.swf", 200));
    play("STOP");
    play(clip("mp_S3.swf", 300));
    log.letGo.release(2);
    EXPECT_EQ(log.await(4), (Calls{"made", "start 100", "stop", "start 300"}));
}

TEST_F(SoundPlayerTest, EndsAStopBeforeTheClipThatIsOrderedAmidIt) {
    log.handlesEventsAtStops = true;
    play(clip("mp_S1.swf", 100));
    log.await(2);
    play("STOP");
    log.await(3);
    play(clip("mp_S2.swf", 200));
    log.letGo.release(2);
    EXPECT_EQ(log.await(7),
              (Calls{"made", "start 100", "stop", "stopped", "stop", "stopped", "start 200"}));
}

TEST_F(SoundPlayerTest, UsesItsSpeakerOnOneOtherThread) {
    play(clip("mp_S1.swf", 100));
    log.await(2);
    play("STOP");
    log.await(3);
    EXPECT_TRUE(player.end());
    log.await(4);
    EXPECT_EQ(log.threads().size(), 1U);
    EXPECT_FALSE(log.threads().contains(QThread::currentThread()));
}

TEST_F(SoundPlayerTest, DeletesItsSpeakerAtTheEnd) {
    play(clip("mp_S1.swf", 100));
    log.await(2);
    EXPECT_TRUE(player.end());
    EXPECT_EQ(log.await(3), (Calls{"made", "start 100", "deleted"}));
}

TEST_F(SoundPlayerTest, TakesNoOrdersBehindItsEnd) {
    EXPECT_TRUE(player.end());
    play(clip("mp_S1.swf", 100));
    EXPECT_TRUE(player.end());
    EXPECT_EQ(log.await(0), Calls());
}

TEST_F(SoundPlayerTest, LeavesASpeakerThatHangsBehind) {
    log.holdsStarts = true;
    play(clip("mp_S1.swf", 100));
    log.await(2);
    EXPECT_FALSE(player.end());
    EXPECT_EQ(log.await(2), (Calls{"made", "start 100"}));
    // Once it answers it goes in peace.
    log.letGo.release();
    EXPECT_EQ(log.await(3), (Calls{"made", "start 100", "deleted"}));
    const auto threads = log.threads();
    QThread* thread = *threads.begin();
    bool gone = false;
    QObject::connect(thread, &QObject::destroyed, [&] { gone = true; });
    thread->wait();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(gone);
}

}  // namespace orvanta::sound::test
