#include "desktop/clicks.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QPushButton>

#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

class ModalDialog : public QDialog {
public:
    explicit ModalDialog(QWidget* owner) : QDialog(owner) {
        setModal(true);
        show();
    }
};

}  // namespace

TEST(Clicks, OfAssistiveProgramsDoNothingBehindADialog) {
    WindowBench bench;
    bench.start();
    bench.openBrainstorm();
    bench.set("txtStrength", "First");
    auto& add = bench.widget<QPushButton>("imgBtnBSAdd");
    auto& undo = bench.widget<QPushButton>("cmdUndo");
    const auto rows = [&bench] { return bench.list("lvBStrength").count(); };
    {
        const ModalDialog dialog(&bench.window());
        add.click();
        EXPECT_EQ(rows(), 0);
    }
    add.click();
    EXPECT_EQ(rows(), 1);
    {
        const ModalDialog dialog(&bench.window());
        undo.click();
        EXPECT_EQ(rows(), 1);
    }
    undo.click();
    EXPECT_EQ(rows(), 0);
}

TEST(Clicks, CountInTheDialogInFrontAlone) {
    WindowBench bench;
    bench.start();
    ModalDialog behind(&bench.window()), front(&behind);
    QPushButton behindButton(&behind), frontButton(&front);
    std::string clicked;
    whenClicked(behindButton, [&clicked] { clicked += "behind "; });
    whenClicked(frontButton, [&clicked] { clicked += "front "; });
    behindButton.click();
    frontButton.click();
    front.hide();
    behindButton.click();
    EXPECT_EQ(clicked, "front behind ");
}

}  // namespace orvanta::test
