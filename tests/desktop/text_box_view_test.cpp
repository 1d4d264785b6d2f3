#include "desktop/text_box_view.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QtTest>

#include "desktop/conversions.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

void pasteInto(TextBoxView& view, const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(&view, Qt::Key_V, Qt::ControlModifier);
}

class TextBoxViewTest : public testing::Test {
protected:
    void paste(const QString& text) { pasteInto(view, text); }

    ControlSet controls;
    TextBox model{controls, "txtAny", 10};
    std::string typed;
    char refused = 0;
    TextBoxView view{model, [this](char character) {
                         typed += character;
                         return character != refused;
                     }};
};

class PathBoxView : public testing::Test {
protected:
    PathBoxView() { model.setText(toPath(greek)); }

    void paste(const QString& text) { pasteInto(view, text); }

    const QString greek = QStringLiteral("/\u03B1\u03B2/\u03B3.aze");
    ControlSet controls;
    TextBox model{controls, "txtAny"};
    TextBoxView view{model, [](char) { return true; }, TextBoxView::Content::Path};
};

}  // namespace

TEST_F(TextBoxViewTest, AsksAboutEachTypedCharacter) {
    refused = '/';
    QTest::keyClicks(&view, "a/b");
    EXPECT_EQ(typed, "a/b");
    EXPECT_EQ(model.text(), "ab");
}

TEST_F(TextBoxViewTest, DoesNotAskAboutPastedText) {
    refused = '/';
    paste("a/b");
    EXPECT_EQ(typed, "");
    EXPECT_EQ(model.text(), "a/b");
}

TEST_F(TextBoxViewTest, ShowsAQuestionMarkForWhatTheCodePageLacks) {
    paste(QString::fromUtf8("\xC3\xA9\xD0\x96\xF0\x9F\x98\x80."));
    EXPECT_EQ(view.text(), QString::fromUtf8("\xC3\xA9??."));
    EXPECT_EQ(model.text(), "\xE9??.");
}

TEST_F(TextBoxViewTest, TurnsPastedLineBreaksIntoBlanks) {
    paste("a\nb");
    EXPECT_EQ(view.text(), "a b");
}

TEST_F(TextBoxViewTest, CutsWhatIsEnteredBeyondItsLength) {
    QTest::keyClicks(&view, "12345678");
    view.setCursorPosition(4);
    paste("abcdef");
    EXPECT_EQ(model.text(), "1234ab5678");
    QTest::keyClicks(&view, "x");
    EXPECT_EQ(model.text(), "1234ab5678");
}

TEST_F(TextBoxViewTest, KeepsALongerTextOfTheProgramAndLetsItShrink) {
    model.setText("123456789012345");
    EXPECT_EQ(view.text(), "123456789012345");
    view.setCursorPosition(15);
    QTest::keyClicks(&view, "x");
    EXPECT_EQ(model.text(), "123456789012345");
    QTest::keyClick(&view, Qt::Key_Backspace);
    EXPECT_EQ(model.text(), "12345678901234");
}

TEST_F(TextBoxViewTest, TakesATextThatAnAssistiveProgramSets) {
    auto* told = QAccessible::queryAccessibleInterface(&view);
    told->setText(QAccessible::Value, QString::fromUtf8("caf\xC3\xA9 \xD0\x96 and much more"));
    EXPECT_EQ(model.text(), "caf\xE9 ? and");
    EXPECT_EQ(view.text(), QString::fromUtf8("caf\xC3\xA9 ? and"));
}

TEST_F(TextBoxViewTest, ReportsEnterAsAReturnCharacter) {
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(typed, "\r");
    EXPECT_EQ(model.text(), "");
}

TEST_F(TextBoxViewTest, LeavesEnterWithCtrlToTheWindowAlsoFromTheNumberPad) {
    QTest::keyClick(&view, Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClick(&view, Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(typed, "");
}

TEST_F(PathBoxView, ShowsANameOfTheSystemAndKeepsItsPathWhileNobodyChangesIt) {
    EXPECT_EQ(view.text(), greek);
    EXPECT_EQ(model.text(), toPath(greek));
    QTest::keyClick(&view, Qt::Key_End);
    EXPECT_EQ(model.text(), toPath(greek));
}

TEST_F(PathBoxView, HoldsWhatWasChangedInANameOfTheSystem) {
    QTest::keyClick(&view, Qt::Key_End);
    QTest::keyClicks(&view, "2");
    EXPECT_EQ(model.text(), toPath(greek + u'2'));
    paste(QStringLiteral("\u65E5\u672C"));
    EXPECT_EQ(view.text(), greek + QStringLiteral("2\u65E5\u672C"));
    EXPECT_EQ(model.text(), toPath(view.text()));
}

TEST_F(PathBoxView, HoldsWhatTheCodePageHoldsAsAnyTextBoxDoes) {
    view.selectAll();
    paste(QStringLiteral("/a\nb"));
    EXPECT_EQ(model.text(), "/a b");
}

}  // namespace orvanta::test
