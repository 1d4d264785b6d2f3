#include "hand.h"

#include <QApplication>
#include <QClipboard>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest>

namespace orvanta::monkey {

namespace {

QWindow* windowOf(QWidget& widget) { return widget.window()->windowHandle(); }

QPoint inWindow(QWidget& widget, QPoint point) { return widget.mapTo(widget.window(), point); }

}  // namespace

void Hand::click(QWidget& on, QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    const Working working;
    QTest::mouseClick(windowOf(on), button, modifiers, inWindow(on, at));
}

void Hand::doubleClick(QWidget& on, QPoint at) {
    const Working working;
    QTest::mouseDClick(windowOf(on), Qt::LeftButton, Qt::NoModifier, inWindow(on, at));
}

void Hand::press(QWidget& on, QPoint at) {
    const Working working;
    QTest::mousePress(windowOf(on), Qt::LeftButton, Qt::NoModifier, inWindow(on, at));
}

void Hand::moveTo(QWidget& over, QPoint at) {
    const Working working;
    QTest::mouseMove(windowOf(over), inWindow(over, at));
}

void Hand::release(QWidget& over, QPoint at) {
    const Working working;
    QTest::mouseRelease(windowOf(over), Qt::LeftButton, Qt::NoModifier, inWindow(over, at));
}

void Hand::turnWheel(QWidget& over, QPoint at, int notches) {
    const Working working;
    QWheelEvent event(at, over.mapToGlobal(at), {}, {0, notches * 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&over, &event);
}

void Hand::key(QWidget& in, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    const Working working;
    QTest::keyClick(windowOf(in), key, modifiers);
}

void Hand::type(QWidget& in, const QString& text) {
    const Working working;
    const QPointer<QWindow> window = windowOf(in);
    for (const QChar character : text)
        if (window)
            QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, character, Qt::NoModifier);
}

void Hand::paste(QWidget& in, const QString& text) {
    QApplication::clipboard()->setText(text);
    key(in, Qt::Key_V, Qt::ControlModifier);
}

}  // namespace orvanta::monkey
