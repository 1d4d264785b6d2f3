#include "desktop/sound/sound_player.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <atomic>
#include <chrono>
#include <optional>
#include <utility>

#include "view/path_text.h"

namespace orvanta::sound {

namespace {

/// Empty for what is no file or too large for a movie.
QByteArray bytesOf(const std::string& path) {
    const QString name = QString::fromStdString(nativeFromPath(path));
    const QFileInfo file(name);
    if (!file.isFile() || file.size() > static_cast<qint64>(maximumMovieSize)) return {};
    QFile movie(name);
    return movie.open(QIODevice::ReadOnly) ? movie.readAll() : QByteArray();
}

}  // namespace

class SoundPlayer::Worker : public QObject {
public:
    explicit Worker(SoundModuleLoader load) : m_load(std::move(load)) {}

    /// Called from any thread.
    void order(const std::string& path) {
        QCoreApplication::postEvent(this, new OrderEvent({path, ++m_newest}));
    }
    void forgetOrders() { ++m_newest; }

protected:
    // The system's sound may handle the events of this thread amid a call: an order that comes
    // then waits for the end of the one that is being carried out.
    void customEvent(QEvent* event) override {
        m_waiting = static_cast<OrderEvent*>(event)->order;
        if (std::exchange(m_busy, true)) return;
        while (m_waiting) carryOut(*std::exchange(m_waiting, std::nullopt));
        m_busy = false;
    }

private:
    struct Order {
        std::string path;
        unsigned number;
    };
    struct OrderEvent : QEvent {
        explicit OrderEvent(Order of) : QEvent(QEvent::User), order(std::move(of)) {}

        Order order;
    };

    void carryOut(const Order& order) {
        if (order.number != m_newest) return;
        if (m_speaker) m_speaker->stop();
        Samples samples = samplesOfFile(order.path);
        if (samples.empty() || order.number != m_newest) return;
        if (!m_speaker) m_speaker = m_module->makeSpeaker();
        m_speaker->start(std::move(samples));
    }

    Samples samplesOfFile(const std::string& path) {
        const QByteArray bytes = bytesOf(path);
        if (bytes.isEmpty()) return {};
        if (!m_module) m_module = m_load();
        return m_module->samplesOf({reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                                    static_cast<std::size_t>(bytes.size())});
    }

    SoundModuleLoader m_load;
    std::optional<SoundModule> m_module;
    std::atomic<unsigned> m_newest = 0;
    std::optional<Order> m_waiting;
    bool m_busy = false;
    std::unique_ptr<Speaker> m_speaker;  // its end, too, may handle events: it goes first
};

SoundPlayer::SoundPlayer(SoundModuleLoader load)
    : m_thread(new QThread), m_worker(new Worker(std::move(load))) {
    m_worker->moveToThread(m_thread);
    QObject::connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    m_thread->start();
}

SoundPlayer::~SoundPlayer() { end(); }

void SoundPlayer::play() {
    if (m_thread) m_worker->order(m_movie);
}

bool SoundPlayer::end() {
    if (!m_thread) return true;
    constexpr std::chrono::milliseconds patience{400};
    QThread* thread = std::exchange(m_thread, nullptr);
    m_worker->forgetOrders();
    thread->quit();
    if (thread->wait(QDeadlineTimer(patience))) {
        delete thread;
        return true;
    }
    // A thread that waits can't be deleted. Should it ever go on, it is.
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    return false;
}

}  // namespace orvanta::sound

namespace orvanta::desktop {

std::unique_ptr<DesktopPlayer> makePlayer() {
    return std::make_unique<sound::SoundPlayer>(sound::loadSoundModule);
}

}  // namespace orvanta::desktop
