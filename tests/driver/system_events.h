#pragma once

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace orvanta::driver {

/// Keeps from a window what the window system sends it of itself: while a script plays, neither
/// the real mouse moves over the lists nor does the real desktop make the window active.
class SystemEventsKeptOut : public QObject {
public:
    /// As long as both live.
    explicit SystemEventsKeptOut(QWidget& window) : m_window(window) {
        QApplication::instance()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!event->spontaneous() || !watched->isWidgetType()) return false;
        if (event->type() == QEvent::WindowActivate) return watched == &m_window;
        return event->type() == QEvent::MouseMove &&
               static_cast<QWidget*>(watched)->window() == &m_window;
    }

private:
    const QWidget& m_window;
};

}  // namespace orvanta::driver
