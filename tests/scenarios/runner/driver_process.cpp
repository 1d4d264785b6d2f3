#include "driver_process.h"

#include <fstream>
#include <sstream>

// What the systems share; the rest is in posix_driver_process.cpp and windows_driver_process.cpp.

namespace orvanta::scenarios {

std::string DriverProcess::receive() {
    std::size_t end;
    while ((end = m_unread.find('\n')) == std::string::npos) readMore();
    std::string line = m_unread.substr(0, end);
    m_unread.erase(0, end + 1);
    return line;
}

std::string DriverProcess::errorsSaid() const {
    std::ostringstream content;
    content << std::ifstream(m_errors).rdbuf();
    return content.str();
}

}  // namespace orvanta::scenarios
