#include "desktop/message_box.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QPushButton>

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

QString buttonsOf(const MessageBox& box) {
    QStringList names;
    for (const auto& [answer, name] : {std::pair{MessageAnswer::Ok, "ok"},
                                       {MessageAnswer::Yes, "yes"},
                                       {MessageAnswer::No, "no"},
                                       {MessageAnswer::Cancel, "cancel"}})
        if (box.buttonFor(answer)) names << QLatin1String(name);
    return names.join(u' ');
}

TEST(MessageBox, HasTheButtonsOfItsMessage) {
    EXPECT_EQ(buttonsOf(MessageBox({.text = "a"}, nullptr)), QStringLiteral("ok"));
    EXPECT_EQ(buttonsOf(MessageBox({.text = "a", .buttons = MessageButtons::YesNo}, nullptr)),
              QStringLiteral("yes no"));
    EXPECT_EQ(buttonsOf(MessageBox({.text = "a", .buttons = MessageButtons::YesNoCancel}, nullptr)),
              QStringLiteral("yes no cancel"));
}

TEST(MessageBox, StartsAtItsDefaultAndAnswersWhatIsPressed) {
    MessageBox box(
        {.text = "a", .buttons = MessageButtons::YesNo, .defaultAnswer = MessageAnswer::No},
        nullptr);
    EXPECT_EQ(box.defaultButton(), box.buttonFor(MessageAnswer::No));
    box.show();
    box.buttonFor(MessageAnswer::Yes)->click();
    EXPECT_EQ(box.answer(), MessageAnswer::Yes);
}

TEST(MessageBox, AnswersNoOrCancelToEscape) {
    MessageBox question({.text = "a", .buttons = MessageButtons::YesNo}, nullptr);
    EXPECT_EQ(question.escapeButton(), question.buttonFor(MessageAnswer::No));
    MessageBox prompt({.text = "a", .buttons = MessageButtons::YesNoCancel}, nullptr);
    EXPECT_EQ(prompt.escapeButton(), prompt.buttonFor(MessageAnswer::Cancel));
}

TEST(MessageBox, ShowsItsTextAsItStandsUnderItsTitleOrTheProductsName) {
    const MessageBox plain({.text = "<b>5 \x80</b>"}, nullptr);
    EXPECT_EQ(plain.text(), QString::fromUtf8("<b>5 €</b>"));
    EXPECT_EQ(plain.textFormat(), Qt::PlainText);
    EXPECT_EQ(plain.windowTitle(), QCoreApplication::applicationName());
    EXPECT_EQ(MessageBox({.text = "a", .title = "Merge"}, nullptr).windowTitle(),
              QStringLiteral("Merge"));
}

}  // namespace

}  // namespace orvanta::test
