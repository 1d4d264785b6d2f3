#pragma once

#include <string>

#include "desktop/player.h"
#include "desktop/sound/sound_module.h"

class QThread;

namespace orvanta::sound {

/// Plays movies on a thread of its own, since a sound server that hangs keeps whoever talks to
/// it. A call only leaves word there; a newer one makes an older one void.
class SoundPlayer : public desktop::DesktopPlayer {
public:
    /// The module is loaded on the thread of the sound, with the first movie that there is.
    explicit SoundPlayer(SoundModuleLoader load);
    ~SoundPlayer() override;
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    void setMovie(const std::string& path) override { m_movie = path; }
    void play() override;
    bool end() override;

private:
    class Worker;

    std::string m_movie;
    QThread* m_thread;  // null behind the end; one that hangs is left behind
    Worker* m_worker;   // lives and dies on the thread
};

}  // namespace orvanta::sound
