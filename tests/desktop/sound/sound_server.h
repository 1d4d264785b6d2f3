#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include "coders.h"
#include "view/platform.h"

namespace orvanta::sound::test {

/// A sound server of the test's own, whose only device is a sink that nobody hears.
class SoundServer {
public:
    /// From then on the program's sound goes there.
    SoundServer();
    ~SoundServer();
    SoundServer(const SoundServer&) = delete;
    SoundServer& operator=(const SoundServer&) = delete;

    bool isReady() const { return m_ready; }
    QString address() const;
    /// Stops it amid its work, and lets it go on.
    void freeze();
    void thaw();

private:
    QString socket() const { return m_folder.filePath(QStringLiteral("native")); }

    QTemporaryDir m_folder;
    QProcess m_process;
    bool m_ready = false;
};

/// What comes out of the sink from now on.
class Recording {
public:
    explicit Recording(const SoundServer& server);
    ~Recording();
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    Samples samples() const;
    double seconds() const;
    /// What came out before is as if it had never been.
    void forget() { m_bytes.clear(); }

private:
    QProcess m_process;
    QByteArray m_bytes;
};

/// A twentieth of a second of a recording.
struct Moment {
    double loudness;  // root of the mean square of the left channel
    Samples samples;
};

std::vector<Moment> momentsOf(const Samples& samples);

/// Whether this pitch is the chief one, and loud.
bool sounds(const Moment& moment, double pitch);

/// Whether this pitch sounded for a quarter of a second.
bool isHeard(const Recording& recording, double pitch);

/// How alike the ups and downs of loudness are, where they fit best: 1 for the same sound.
double likeness(const Samples& heard, const Samples& played);

void writeMovie(const QString& path, const Bytes& movie);

void play(Player& player, const QString& path);

}  // namespace orvanta::sound::test
