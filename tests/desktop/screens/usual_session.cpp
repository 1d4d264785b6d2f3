#include "usual_session.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QTimer>
#include <tuple>

#include "desktop/dialogs.h"
#include "desktop/message_box.h"
#include "desktop/platform.h"
#include "desktop/question_printer.h"
#include "presentation/question_sheets.h"
#include "session.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// As far as each picture needs it.
class UsualSession : Session {
public:
    using Session::Session;

    void takeAll() {
        takeSplash();
        open();
        take("home");
        takeBrainstorming();
        takeAnalysis();
        takeMenu("lvThreat", 2);
        takeDrag(2, 4);
        takeDialogs();
    }

private:
    void takeSplash() {
        const FrmSplash form;
        SplashDialog splash(m_bench.program(), form);
        splash.show();
        m_album.take(splash, QStringLiteral("splash"));
    }

    void takeBrainstorming() {
        m_bench.click("Brainstorm");
        m_bench.set("txtName", "Dana Reyes");
        m_bench.play({{"do", "choose"}, {"option", "optMP"}});
        take("choice");
        m_bench.click("BNext");
        m_bench.enter("txtStrength", {"Loyal customers", "Riders know every street of the city",
                                      "Our own repair shop"});
        m_bench.set("txtStrength", "A name that people trust");
        m_bench.select("lvBStrength", 2);
        take("question-strengths");
        m_bench.answerMessage("yes");  // the answer that stands in the box is added
        goTo("fraWeakness");
        m_bench.enter("txtWeakness", {"No service at night", "Prices above the market"});
        take("question-weaknesses");
        goTo("fraOpportunity");
        m_bench.enter("txtOpportunity",
                      {"Shops deliver on the same day", "The old town closes to cars"});
        take("question-opportunities");
        goTo("fraThreats");
        m_bench.enter("txtThreat", {"A chain opens nearby", "Rain keeps customers away"});
        while (!m_bench.form().onLastQuestion) m_bench.click("BNext");
        m_bench.select("lvBThreat", 1);
        take("question-threats");
        takePreview();
    }

    void takeAnalysis() {
        openAnalysis();
        addSourcesOf(Team::Usual);
        m_bench.play({{"do", "select"}, {"list", "lstFiles"}, {"row", 1}});
        take("source-files");
        m_bench.click("ANext");
        m_bench.select("lvAStrength", 2);
        take("analyze-strengths");
        m_bench.click("ANext");
        take("analyze-weaknesses");
        m_bench.click("ANext");
        m_bench.drag("lvAOpportunity", 1, "lvAOpportunity", 3);
        take("analyze-opportunities");
        m_bench.click("ANext");
        take("analyze-threats");
        m_bench.click("ANext");
        for (const auto& [list, row, at] :
             {std::tuple("lvStrengthOp", 1, 1), std::tuple("lvStrengthOp", 2, 1),
              std::tuple("lvWeaknessOp", 1, 1), std::tuple("lvStrengthOp", 3, 5),
              std::tuple("lvWeaknessOp", 4, 6)})
            m_bench.drag(list, row, "lvOpportunity", at);
        take("mapping-opportunities");
        m_bench.click("ANext");
        for (const auto& [list, row, at] :
             {std::tuple("lvStrengthTh", 1, 1), std::tuple("lvWeaknessTh", 2, 1),
              std::tuple("lvStrengthTh", 6, 5)})
            m_bench.drag(list, row, "lvThreat", at);
        take("mapping-threats");
    }

    void takeDialogs() {
        QWidget* window = &m_bench.window();
        FrmEdit edit;
        edit.txtEdit.setText("Riders know every street of the city");
        EditDialog editDialog(m_bench.program(), edit, window);
        takeDialog(editDialog, "edit-dialog");
        FrmReportType report;
        report.txtEdit.setText("docs/My SWOT/Pedal Post.aze");
        ReportDialog reportDialog(m_bench.program(), report, window);
        takeDialog(reportDialog, "report-dialog");
        takeFormats(reportDialog);
        report.OKButton.setEnabled(false);
        takeDialog(reportDialog, "report-dialog-busy");
        FrmAbout about;
        AboutDialog aboutDialog(m_bench.program(), about, window);
        takeDialog(aboutDialog, "about");
        MessageBox question({.text = "Do you want to save your changes?",
                             .icon = MessageIcon::Question,
                             .buttons = MessageButtons::YesNoCancel},
                            window);
        takeDialog(question, "message-question");
        MessageBox refusal({.text = "Please enter strength.", .icon = MessageIcon::Stop}, window);
        takeDialog(refusal, "message-stop");
        takeFileDialog({"Dana Reyes.bsm", "Lee Park.bsm", "Kim Alder.bsm"});
    }

    void takeFormats(QWidget& dialog) {
        dialog.show();
        auto& formats = *dialog.findChild<QComboBox*>();
        formats.showPopup();
        m_album.takeWith(dialog, *formats.view()->window(), QStringLiteral("report-formats"));
        formats.hidePopup();
        dialog.hide();
    }

    void takePreview() {
        QTimer::singleShot(0, [this] {
            QWidget* preview = QApplication::activeModalWidget();
            m_album.take(*preview, QStringLiteral("print-preview"));
            preview->close();
        });
        const Program& program = m_bench.program();
        PreviewingPrinter().print(questionSheetsOf(program, *chosenModule(program.frmMain)));
    }
};

}  // namespace

void takeUsualSession(Album& album) { UsualSession(album).takeAll(); }

}  // namespace orvanta::test
