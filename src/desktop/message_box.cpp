#include "desktop/message_box.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <array>
#include <cassert>

#include "core/messages.h"
#include "desktop/conversions.h"
#include "desktop/enlargement.h"

namespace orvanta::desktop {

namespace {

QMessageBox::Icon iconFor(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None:
            return QMessageBox::NoIcon;
        case MessageIcon::Stop:
            return QMessageBox::Critical;
        case MessageIcon::Question:
            return QMessageBox::Question;
        case MessageIcon::Information:
            return QMessageBox::Information;
    }
    assert(false);
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton standardButtonFor(MessageAnswer answer) {
    constexpr std::array buttons{QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No,
                                 QMessageBox::Cancel};
    return buttons[static_cast<std::size_t>(answer)];
}

}  // namespace

MessageBox::MessageBox(const Message& message, QWidget* owner)
    : QMessageBox(owner), m_mustBeAnswered(message.buttons == MessageButtons::YesNo) {
    const auto answers = answersOf(message.buttons);
    setTextFormat(Qt::PlainText);
    setText(fromCp1252(message.text));
    setIcon(iconFor(message.icon));
    giveRoom();
    if (auto* picture = findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label")))
        picture->setAccessibleName(fromCp1252(nameOf(message.icon)));
    StandardButtons buttons;
    for (const MessageAnswer answer : answers) buttons |= standardButtonFor(answer);
    setStandardButtons(buttons);
    setEscapeButton(standardButtonFor(answers.back()));
    if (m_mustBeAnswered) setWindowFlag(Qt::WindowCloseButtonHint, false);
    setDefaultButton(standardButtonFor(message.defaultAnswer));
    setWindowTitle(message.title ? fromCp1252(*message.title)
                                 : QCoreApplication::applicationName());
}

/// The toolkit fits the box to its text, so that a short one stands small above its icon's middle.
/// The room is beside the text: a least width of its own would keep a long one from being broken.
void MessageBox::giveRoom() {
    // The toolkit makes no box wider than a small screen, or than a larger one less some pixels.
    constexpr int widestSmall = 1024, leftBeside = 480;
    auto* words = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    auto* grid = qobject_cast<QGridLayout*>(layout());
    assert(words && grid);
    words->setMinimumHeight(style()->pixelMetric(QStyle::PM_MessageBoxIconSize));
    const QMargins margins = grid->contentsMargins();
    const int room = screen()->availableGeometry().width();
    const int narrowest = std::min(enlarged(320), room > widestSmall ? room - leftBeside : room);
    grid->addItem(new QSpacerItem(narrowest - margins.left() - margins.right(), 0),
                  grid->rowCount(), 0, 1, grid->columnCount());
}

void MessageBox::keyPressEvent(QKeyEvent* event) {
    if (m_mustBeAnswered && event->matches(QKeySequence::Cancel)) return event->ignore();
    QMessageBox::keyPressEvent(event);
}

void MessageBox::closeEvent(QCloseEvent* event) {
    if (m_mustBeAnswered) return event->ignore();
    QMessageBox::closeEvent(event);
}

QAbstractButton* MessageBox::buttonFor(MessageAnswer answer) const {
    return button(standardButtonFor(answer));
}

MessageAnswer MessageBox::answer() const {
    for (const auto answer : {MessageAnswer::Ok, MessageAnswer::Yes, MessageAnswer::No})
        if (clickedButton() && clickedButton() == buttonFor(answer)) return answer;
    return MessageAnswer::Cancel;
}

}  // namespace orvanta::desktop
