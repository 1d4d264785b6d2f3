#include "desktop/message_box.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace orvanta::test {

namespace {

using desktop::MessageBox;

/// What a box gives when it is closed without a button.
MessageAnswer answerOnEscape(MessageButtons buttons) {
    MessageBox box({.text = "Go on?", .buttons = buttons}, nullptr);
    box.show();
    QTest::keyClick(&box, Qt::Key_Escape);
    return box.answer();
}

}  // namespace

TEST(MessageBox, GivesItsLastAnswerWhenItIsClosed) {
    EXPECT_EQ(answerOnEscape(MessageButtons::Ok), MessageAnswer::Ok);
    EXPECT_EQ(answerOnEscape(MessageButtons::YesNoCancel), MessageAnswer::Cancel);
}

TEST(MessageBox, OfYesAndNoHeedsNeitherEscapeNorItsCloseBox) {
    MessageBox box({.text = "Go on?", .buttons = MessageButtons::YesNo}, nullptr);
    box.show();
    QTest::keyClick(&box, Qt::Key_Escape);
    QTest::keyClick(box.buttonFor(MessageAnswer::Yes), Qt::Key_Escape);
    box.close();
    EXPECT_TRUE(box.isVisible());
    EXPECT_FALSE(box.windowFlags() & Qt::WindowCloseButtonHint);
    box.buttonFor(MessageAnswer::No)->click();
    EXPECT_FALSE(box.isVisible());
    EXPECT_EQ(box.answer(), MessageAnswer::No);
}

TEST(MessageBox, HasAButtonForEachAnswer) {
    for (const auto buttons :
         {MessageButtons::Ok, MessageButtons::YesNo, MessageButtons::YesNoCancel}) {
        MessageBox box({.text = "Go on?", .buttons = buttons}, nullptr);
        const auto answers = answersOf(buttons);
        EXPECT_EQ(static_cast<std::size_t>(box.buttons().size()), answers.size());
        for (const MessageAnswer answer : answers) {
            ASSERT_TRUE(box.buttonFor(answer));
            box.show();
            box.buttonFor(answer)->click();
            EXPECT_EQ(box.answer(), answer);
        }
    }
}

TEST(MessageBox, TellsItsIconToThoseWhoDoNotSeeIt) {
    const std::vector<std::pair<MessageIcon, const char*>> words{
        {MessageIcon::Stop, "Stop"},
        {MessageIcon::Question, "Question"},
        {MessageIcon::Information, "Information"},
        {MessageIcon::None, ""}};
    for (const auto& [icon, word] : words) {
        const MessageBox box({.text = "Go on?", .icon = icon}, nullptr);
        const auto* picture = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"));
        EXPECT_EQ(picture->accessibleName(), QLatin1String(word));
    }
}

TEST(MessageBox, StartsAtItsDefaultAndAnswersWhatIsPressed) {
    MessageBox box(
        {.text = "a", .buttons = MessageButtons::YesNo, .defaultAnswer = MessageAnswer::No},
        nullptr);
    EXPECT_TRUE(box.defaultButton() == box.buttonFor(MessageAnswer::No));
    box.show();
    box.buttonFor(MessageAnswer::Yes)->click();
    EXPECT_EQ(box.answer(), MessageAnswer::Yes);
}

TEST(MessageBox, ShowsItsTextAsItStandsUnderItsTitleOrTheProductsName) {
    const MessageBox plain({.text = "<b>5 \x80</b>"}, nullptr);
    EXPECT_EQ(plain.text(), QString::fromUtf8("<b>5 €</b>"));
    EXPECT_EQ(plain.textFormat(), Qt::PlainText);
    EXPECT_EQ(plain.windowTitle(), QCoreApplication::applicationName());
    EXPECT_EQ(MessageBox({.text = "a", .title = "Merge"}, nullptr).windowTitle(),
              QStringLiteral("Merge"));
}

TEST(MessageBox, IsNeverNarrow) {
    for (const MessageIcon icon : {MessageIcon::None, MessageIcon::Stop}) {
        MessageBox box({.text = "No.", .icon = icon}, nullptr);
        box.show();
        EXPECT_GE(box.width(), 320);
    }
}

TEST(MessageBox, HasAShortTextBesideTheMiddleOfItsIcon) {
    MessageBox box({.text = "Please enter strength.", .icon = MessageIcon::Stop}, nullptr);
    box.show();
    const auto* words = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    const auto* picture = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"));
    EXPECT_TRUE(words->alignment() & Qt::AlignVCenter);
    EXPECT_LE(std::abs(words->geometry().center().y() - picture->geometry().center().y()), 1);
}

}  // namespace orvanta::test
