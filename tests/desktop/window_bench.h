#pragma once

#include <QRect>
#include <QWidget>
#include <ostream>
#include <stdexcept>

#include "analysis_bench.h"
#include "desktop/conversions.h"
#include "desktop/main_window.h"

inline void PrintTo(const QRect& rect, std::ostream* out) {
    *out << rect.left() << ", " << rect.top() << ", " << rect.width() << " x " << rect.height();
}

namespace orvanta::test {

/// The real window beside a program that is played behind it: what the program does shows in
/// the window, what is done to the window reaches the program.
template <class Program = Bench>
class WindowBench : public Program {
public:
    explicit WindowBench(desktop::Input input = desktop::Input::Driver)
        : m_window(this->program(), input) {}

    desktop::MainWindow& window() { return m_window; }

    template <class Widget = QWidget>
    Widget& widget(const std::string& name) {
        auto* found = m_window.findChild<QWidget*>(desktop::fromCp1252(name));
        return dynamic_cast<Widget&>(found ? *found : throw std::out_of_range(name));
    }

private:
    desktop::MainWindow m_window;
};

}  // namespace orvanta::test
