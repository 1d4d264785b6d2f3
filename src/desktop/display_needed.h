#pragma once

#include <QtGlobal>

namespace orvanta::desktop {

/// While it lives, a start of the toolkit that finds no display ends the program, with a line on
/// standard error and exit code 1. The toolkit itself would abort, which leaves a core.
class DisplayNeeded {
public:
    DisplayNeeded();
    ~DisplayNeeded();
    DisplayNeeded(const DisplayNeeded&) = delete;
    DisplayNeeded& operator=(const DisplayNeeded&) = delete;

private:
    QtMessageHandler m_usual;
};

}  // namespace orvanta::desktop
