#include "desktop/clicks.h"

#include <QApplication>
#include <cassert>
#include <utility>

namespace orvanta::desktop {

void whenClicked(QAbstractButton& button, std::function<void()> act) {
    assert(act);
    QObject::connect(&button, &QAbstractButton::clicked, &button, [&button, act = std::move(act)] {
        const QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || dialog == button.window()) act();
    });
}

bool isPressByEnter(const QKeyEvent& event) {
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    return isEnter && !(event.modifiers() & Qt::ControlModifier);
}

}  // namespace orvanta::desktop
