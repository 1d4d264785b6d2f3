#pragma once

#include <QMessageBox>

#include "view/platform.h"

namespace orvanta::desktop {

/// The box of a message, with its icon, buttons and default. Without a title it carries the
/// application's name.
class MessageBox : public QMessageBox {
public:
    MessageBox(const Message& message, QWidget* owner);

    QAbstractButton* buttonFor(MessageAnswer answer) const;
    /// What the person pressed, once the box has closed.
    MessageAnswer answer() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void giveRoom();

    /// Yes or No alone has to be answered: Escape and the close box mean neither.
    bool m_mustBeAnswered;
};

}  // namespace orvanta::desktop
