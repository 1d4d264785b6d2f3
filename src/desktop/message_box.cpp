#include "desktop/message_box.h"

#include <QCoreApplication>
#include <QLabel>
#include <array>

#include "desktop/conversions.h"

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
    return QMessageBox::NoIcon;
}

/// What the icon says to those who do not see it.
QString wordFor(MessageIcon icon) {
    constexpr std::array words{"", "Stop", "Question", "Information"};
    return QLatin1String(words[static_cast<std::size_t>(icon)]);
}

QMessageBox::StandardButton standardButtonFor(MessageAnswer answer) {
    constexpr std::array buttons{QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No,
                                 QMessageBox::Cancel};
    return buttons[static_cast<std::size_t>(answer)];
}

struct ButtonSet {
    QMessageBox::StandardButtons buttons;
    MessageAnswer onEscape;
};

ButtonSet buttonSetFor(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::Ok:
            break;
        case MessageButtons::YesNo:
            return {QMessageBox::Yes | QMessageBox::No, MessageAnswer::No};
        case MessageButtons::YesNoCancel:
            return {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                    MessageAnswer::Cancel};
    }
    return {QMessageBox::Ok, MessageAnswer::Ok};
}

}  // namespace

MessageBox::MessageBox(const Message& message, QWidget* owner) : QMessageBox(owner) {
    const ButtonSet set = buttonSetFor(message.buttons);
    setTextFormat(Qt::PlainText);
    setText(fromCp1252(message.text));
    setIcon(iconFor(message.icon));
    if (auto* picture = findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label")))
        picture->setAccessibleName(wordFor(message.icon));
    setStandardButtons(set.buttons);
    setEscapeButton(standardButtonFor(set.onEscape));
    setDefaultButton(standardButtonFor(message.defaultAnswer));
    setWindowTitle(message.title ? fromCp1252(*message.title)
                                 : QCoreApplication::applicationName());
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
