#pragma once

#include <QRect>
#include <QWidget>
#include <memory>
#include <ostream>
#include <stdexcept>

#include "analysis_bench.h"
#include "desktop/conversions.h"
#include "desktop/main_window.h"
#include "system_events.h"

inline void PrintTo(const QRect& rect, std::ostream* out) {
    *out << rect.left() << ", " << rect.top() << ", " << rect.width() << " x " << rect.height();
}

namespace orvanta::test {

/// Whether the real mouse and the real desktop have a say in a test.
enum class SystemEvents { KeptOut, LetIn };

/// In its window.
inline QRect placeOf(const QWidget& widget) {
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

/// The real window beside a program that is played behind it: what the program does shows in
/// the window, what is done to the window reaches the program.
template <class Program = Bench>
class WindowBench : public Program {
public:
    explicit WindowBench(SystemEvents events = SystemEvents::KeptOut) : m_window(this->program()) {
        if (events == SystemEvents::KeptOut)
            m_keptOut = std::make_unique<driver::SystemEventsKeptOut>(m_window);
    }

    desktop::MainWindow& window() { return m_window; }

    template <class Widget = QWidget>
    Widget& widget(const std::string& name) {
        auto* found = m_window.findChild<QWidget*>(desktop::fromCp1252(name));
        return dynamic_cast<Widget&>(found ? *found : throw std::out_of_range(name));
    }

private:
    desktop::MainWindow m_window;
    std::unique_ptr<driver::SystemEventsKeptOut> m_keptOut;
};

}  // namespace orvanta::test
