#include "desktop/player.h"

namespace orvanta::desktop {

namespace {

class SilentPlayer : public DesktopPlayer {
public:
    void setMovie(const std::string&) override {}
    void play() override {}
    bool end() override { return true; }
};

}  // namespace

std::unique_ptr<DesktopPlayer> makePlayer() { return std::make_unique<SilentPlayer>(); }

}  // namespace orvanta::desktop
