#pragma once

#include <QWidget>

namespace orvanta::monkey {

/// Keys and a mouse, as the window system hands them to a window: what is under the pointer, or has
/// the keyboard, gets them, unless a dialog keeps them off.
class Hand {
public:
    // Points are those of the widget.
    static void click(QWidget& on, QPoint at, Qt::MouseButton button = Qt::LeftButton,
                      Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void click(QWidget& on) { click(on, on.rect().center()); }
    static void doubleClick(QWidget& on, QPoint at);
    static void press(QWidget& on, QPoint at);
    static void moveTo(QWidget& over, QPoint at);
    static void release(QWidget& over, QPoint at);
    static void turnWheel(QWidget& over, QPoint at, int notches);

    // To whatever has the keyboard in the window of this widget.
    static void key(QWidget& in, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void type(QWidget& in, const QString& text);
    static void paste(QWidget& in, const QString& text);

    /// True while one of these does its work.
    static bool isAtWork() { return s_atWork > 0; }

private:
    class Working {
    public:
        Working() { ++s_atWork; }
        ~Working() { --s_atWork; }
        Working(const Working&) = delete;
        Working& operator=(const Working&) = delete;
    };
    static inline int s_atWork = 0;
};

}  // namespace orvanta::monkey
