#include "sound_server.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QStandardPaths>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstring>

#include "view/windows1252.h"

namespace orvanta::sound::test {

namespace {

constexpr int patienceWithAServer = 10000;  // milliseconds

std::vector<double> loudnessOf(const Samples& samples) {
    std::vector<double> all;
    for (const Moment& moment : momentsOf(samples)) all.push_back(moment.loudness);
    return all;
}

double correlation(std::span<const double> first, std::span<const double> second) {
    const auto mean = [](std::span<const double> values) {
        double sum = 0;
        for (const double value : values) sum += value;
        return sum / static_cast<double>(values.size());
    };
    const double firstMean = mean(first), secondMean = mean(second);
    double both = 0, firstOnly = 0, secondOnly = 0;
    for (std::size_t i = 0; i < first.size(); ++i) {
        const double a = first[i] - firstMean, b = second[i] - secondMean;
        both += a * b;
        firstOnly += a * a;
        secondOnly += b * b;
    }
    const double scale = std::sqrt(firstOnly * secondOnly);
    return scale == 0 ? 0 : both / scale;
}

}  // namespace

SoundServer::SoundServer() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "PULSE_RUNTIME_PATH", "PULSE_STATE_PATH"}) {
        qputenv(name, m_folder.path().toUtf8());
        environment.insert(QString::fromLatin1(name), m_folder.path());
    }
    qputenv("PULSE_SERVER", address().toUtf8());
    m_process.setProcessEnvironment(environment);
    m_process.setStandardErrorFile(QProcess::nullDevice());
    if (const QString pulse = QStandardPaths::findExecutable(QStringLiteral("pulseaudio"));
        !pulse.isEmpty())
        m_process.start(
            pulse,
            {QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
             QStringLiteral("--exit-idle-time=-1"), QStringLiteral("-L"),
             QStringLiteral("module-native-protocol-unix auth-anonymous=1 socket=") + socket(),
             QStringLiteral("-L"), QStringLiteral("module-null-sink sink_name=probe")});
    else
        m_process.start(QStringLiteral(ORVANTA_PIPEWIRE_SERVER), {m_folder.path()});
    m_ready = m_process.waitForStarted() &&
              QTest::qWaitFor([&] { return QFile::exists(socket()); }, patienceWithAServer);
}

SoundServer::~SoundServer() {
    thaw();
    m_process.terminate();
    m_process.waitForFinished(patienceWithAServer);
}

QString SoundServer::address() const { return QStringLiteral("unix:") + socket(); }

void SoundServer::freeze() { ::kill(static_cast<pid_t>(m_process.processId()), SIGSTOP); }

void SoundServer::thaw() {
    if (m_process.processId() > 0) ::kill(static_cast<pid_t>(m_process.processId()), SIGCONT);
}

Recording::Recording(const SoundServer& server) {
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput,
                     [this] { m_bytes += m_process.readAllStandardOutput(); });
    m_process.start(
        QStringLiteral("parec"),
        {QStringLiteral("--server=") + server.address(), QStringLiteral("--device=probe.monitor"),
         QStringLiteral("--raw"), QStringLiteral("--format=s16le"), QStringLiteral("--rate=44100"),
         QStringLiteral("--channels=2"), QStringLiteral("--latency-msec=20")});
    m_process.waitForStarted();
    (void)QTest::qWaitFor([&] { return !m_bytes.isEmpty(); }, patienceWithAServer);
}

Recording::~Recording() {
    m_process.terminate();
    m_process.waitForFinished(patienceWithAServer);
}

Samples Recording::samples() const {
    constexpr qsizetype bytesOfAMoment = 4;  // two channels of two bytes
    const auto size = static_cast<std::size_t>(m_bytes.size() / bytesOfAMoment * bytesOfAMoment);
    Samples all(size / 2);
    std::memcpy(all.data(), m_bytes.constData(), size);
    return all;
}

double Recording::seconds() const {
    return static_cast<double>(samples().size()) / playedChannels / playedRate;
}

std::vector<Moment> momentsOf(const Samples& samples) {
    constexpr std::ptrdiff_t size = std::ptrdiff_t{playedRate} / 20 * playedChannels;
    std::vector<Moment> moments;
    for (auto from = samples.begin(); samples.end() - from >= size; from += size) {
        double energy = 0;
        for (auto left = from; left < from + size; left += playedChannels)
            energy += static_cast<double>(*left) * *left;
        moments.push_back(
            {std::sqrt(energy * playedChannels / static_cast<double>(size)), {from, from + size}});
    }
    return moments;
}

bool sounds(const Moment& moment, double pitch) {
    constexpr double loud = 3000;
    return moment.loudness > loud && shareOf(pitch, moment.samples, 0) > 0.5;
}

bool isHeard(const Recording& recording, double pitch) {
    constexpr int quarterOfASecond = 5;  // moments
    const std::vector<Moment> moments = momentsOf(recording.samples());
    return std::ranges::count_if(moments, [&](const Moment& m) { return sounds(m, pitch); }) >=
           quarterOfASecond;
}

double likeness(const Samples& heard, const Samples& played) {
    const std::vector<double> ofPlayed = loudnessOf(played);
    double best = 0;
    constexpr std::size_t shift = std::size_t{playedRate} / 200 * playedChannels, shifts = 10;
    for (std::size_t i = 0; i < shifts && i * shift < heard.size(); ++i) {
        const std::vector<double> ofHeard =
            loudnessOf({heard.begin() + static_cast<std::ptrdiff_t>(i * shift), heard.end()});
        for (std::size_t from = 0; from + ofPlayed.size() <= ofHeard.size(); ++from)
            best = std::max(
                best, correlation(std::span(ofHeard).subspan(from, ofPlayed.size()), ofPlayed));
    }
    return best;
}

void writeMovie(const QString& path, const Bytes& movie) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(reinterpret_cast<const char*>(movie.data()), static_cast<qint64>(movie.size()));
}

void play(Player& player, const QString& path) {
    player.setMovie(windows1252From(path.toStdString()));
    player.play();
}

}  // namespace orvanta::sound::test
