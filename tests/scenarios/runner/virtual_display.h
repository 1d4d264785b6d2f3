#pragma once

#include <sys/types.h>

namespace orvanta::scenarios {

/// A display without a screen: an X server of our own, named in DISPLAY while this lives.
class VirtualDisplay {
public:
    VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;
    ~VirtualDisplay();

private:
    pid_t m_server = -1;
};

}  // namespace orvanta::scenarios
