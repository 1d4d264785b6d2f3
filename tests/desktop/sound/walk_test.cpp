#include <gtest/gtest.h>

#include <QFile>
#include <QTest>

#include "desktop/player.h"
#include "movie_writer.h"
#include "sound_server.h"

// Someone who knows the questions and walks on before a clip ends. The one test that goes by the
// clock: what it looks for hangs on how far the sound server is with the clip before.

namespace orvanta::sound::test {

namespace {

constexpr int questions = 60, pitches = 10;
constexpr double pace = 1.8;     // seconds
constexpr int patience = 20000;  // milliseconds

double pitchOf(int question) { return 400 + 100 * (question % pitches); }

/// Clips that differ in pitch, each long enough not to end before the next.
class ClipFolder {
public:
    ClipFolder() {
        for (int question = 0; question < pitches; ++question) {
            const Form form{Coding::Pcm16, 22050, 1};
            const Samples samples = tone(pitchOf(question), form.rate, form.channels, 10);
            writeMovie(pathOf(question), MovieWriter().stream(form, samples).file());
        }
    }

    QString pathOf(int question) const {
        return m_folder.filePath(QString::number(question % pitches));
    }

private:
    QTemporaryDir m_folder;
};

/// As the wizards do it, which takes a moment between the two orders.
void walkOn(Player& player, const QString& clip) {
    play(player, QStringLiteral("STOP"));
    if (QFile::exists(clip)) play(player, clip);
}

}  // namespace

TEST(SomeoneWhoWalksOnSwiftly, HearsEachClip) {
    const SoundServer server;
    ASSERT_TRUE(server.isReady());
    const ClipFolder clips;
    const auto player = desktop::makePlayer();
    Recording recording(server);
    for (int question = 0; question < questions; ++question) {
        recording.forget();
        walkOn(*player, clips.pathOf(question));
        ASSERT_TRUE(QTest::qWaitFor([&] { return recording.seconds() >= pace; }, patience));
        // Beside other work a clip may come late. One that was lost never comes.
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return isHeard(recording, pitchOf(question)); }, patience))
            << "clip " << question << " of " << questions;
    }
}

}  // namespace orvanta::sound::test
