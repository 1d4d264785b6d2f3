// Paints the screens and dialogs of the program into pictures, for the product's pages and for
// looking them over.
//   orvanta_screens FOLDER [usual | wordy | silent | crowd]
// The word says what the team is like. Of the usual one, which it is without a word, every screen
// and dialog is painted; of the others what looks different.

#include <QAbstractItemView>
#include <QApplication>
<<<<<<< HEAD
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QTimer>
#include <QtTest>
#include <fstream>
    =======
>>>>>>> g-proof
#include <iostream>

#include "desktop/theme.h"
    <<<<<<< HEAD
#include "presentation/question_sheets.h"
#include "window_bench.h"

    namespace orvanta::test {

    namespace {

    using namespace orvanta::desktop;

    std::string bytesOf(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// Numbers the pictures in the order in which they are taken.
    class Album {
    public:
        explicit Album(QString folder) : m_folder(std::move(folder)) {}

        void take(QWidget& window, const QString& name) {
            QTest::qWait(100);  // the file dialog reads its folder on another thread
            keep(window.grab(), name);
        }

        /// A window with what has come up in front of it.
        void takeWith(QWidget& window, QWidget& inFront, const QString& name) {
            QCoreApplication::processEvents();
            QPixmap picture = window.grab();
            QPainter painter(&picture);
            painter.drawPixmap(window.mapFromGlobal(inFront.mapToGlobal(QPoint())), inFront.grab());
            painter.end();
            keep(picture, name);
        }

        int count() const { return m_count; }
        bool isWhole() const { return m_whole; }

    private:
        void keep(const QPixmap& picture, const QString& name) {
            const QString file = QStringLiteral("%1/%2-%3.png")
                                     .arg(m_folder)
                                     .arg(++m_count, 2, 10, QLatin1Char('0'))
                                     .arg(name);
            m_whole = picture.save(file, "PNG") && m_whole;
        }

        QString m_folder;
        int m_count = 0;
        bool m_whole = true;
    };

    /// A team's session with the real questions, as far as each picture needs it.
    class Session {
    public:
        explicit Session(Album& album) : m_album(album) {
            for (const char* name : {"gbs", "hrp", "mp", "psd", "sbd", "analyze"}) {
                const std::string file = std::string(name) + "questions.txt";
                m_bench.disk.files["app/" + file] = bytesOf(dataFolder() + '/' + file);
            }
        }

        void takeAll() {
            takeSplash();
            m_bench.start();
            m_bench.window().show();
            QApplication::setActiveWindow(&m_bench.window());
            m_album.take(m_bench.window(), QStringLiteral("home"));
            takeBrainstorming();
            takeAnalysis();
            takeMenu();
            takeDrag();
            takeDialogs();
        }

    private:
        void take(const char* name) { m_album.take(m_bench.window(), QLatin1String(name)); }

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

        void goTo(const std::string& panel) {
            while (!m_bench.control(panel).isVisible()) m_bench.click("BNext");
        }

        void takeAnalysis() {
            m_bench.answerMessage("no");
            m_bench.openAnalyze();
            m_bench.addSource(
                "docs/My SWOT/Dana Reyes.bsm", "Dana Reyes",
                {"Loyal customers", "Riders know every street of the city", "Our own repair shop"},
                {"No service at night", "Prices above the market"},
                {"Shops deliver on the same day", "The old town closes to cars"},
                {"A chain opens nearby", "Rain keeps customers away"});
            m_bench.addSource("docs/My SWOT/Lee Park.bsm", "Lee Park",
                              {"Low running costs", "A name that people trust"},
                              {"Bookkeeping on paper"}, {"The city pays for cargo bikes"},
                              {"Rents rise"});
            m_bench.addSource("docs/My SWOT/Kim Alder.bsm", "Kim Alder", {"Riders stay for years"},
                              {"Too few trainees", "Shifts are known late"},
                              {"A school for riders next door"}, {"Riders leave for larger firms"});
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

        void takeMenu() {
            m_bench.select("lvThreat", 2);
            auto& list = m_bench.widget<StatementListView>("lvThreat");
            const QPoint place = list.visualRect(list.indexAtPosition(2)).center();
            QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                    list.viewport()->mapToGlobal(place));
            QApplication::sendEvent(list.viewport(), &event);
            QWidget& menu = *QApplication::activePopupWidget();
            m_album.takeWith(m_bench.window(), menu, QStringLiteral("menu"));
            menu.close();
        }

        void takeDrag() {
            m_bench.select("lvStrengthTh", 2);
            auto& list = m_bench.widget<StatementListView>("lvThreat");
            const QPoint place = list.visualRect(list.indexAtPosition(4)).center();
            draggedOver(m_bench.program(), m_bench.list("lvStrengthTh"));
            const StatementDrag load(m_bench.list("lvStrengthTh"));
            QDragEnterEvent enter(place, Qt::MoveAction, &load, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(list.viewport(), &enter);
            take("drag");
            QDragLeaveEvent leave;
            QApplication::sendEvent(list.viewport(), &leave);
        }

        void takeDialog(QWidget& dialog, const char* name) {
            dialog.show();
            m_album.take(dialog, QLatin1String(name));
            dialog.hide();
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
            MessageBox refusal({.text = "Please enter strength.", .icon = MessageIcon::Stop},
                               window);
            takeDialog(refusal, "message-stop");
            FileChooser chooser({.mode = FileDialogMode::Open,
                                 .filter = "All Brainstorming Files (*.bsm)|*.bsm",
                                 .initialPath = folderOfSessions(),
                                 .fileName = {}},
                                FileRules::Heeded, window);
            takeDialog(chooser, "file-dialog");
        }

        void takeFormats(QWidget& dialog) {
            dialog.show();
            auto& formats = *dialog.findChild<QComboBox*>();
            formats.showPopup();
            m_album.takeWith(dialog, *formats.view()->window(), QStringLiteral("report-formats"));
            formats.hidePopup();
            dialog.hide();
        }

        static std::string folderOfSessions() {
            const QDir folder(QDir::homePath() + QStringLiteral("/My SWOT"));
            QDir().mkpath(folder.path());
            for (const char* name : {"Dana Reyes.bsm", "Lee Park.bsm", "Kim Alder.bsm"})
                QFile(folder.filePath(QLatin1String(name))).open(QIODevice::WriteOnly);
            return toCp1252(folder.path());
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

        Album& m_album;
        WindowBench<> m_bench;
    };

    }  // namespace

}  // namespace orvanta::test
=======
#include "team_session.h"
#include "usual_session.h"
>>>>>>> g-proof

    int
    main(int argc, char** argv) {
    using namespace orvanta::test;
    QApplication application(argc, argv);
    const QStringList words = application.arguments();
    const auto team = teamNamed(words.size() > 2 ? words.at(2).toStdString() : "usual");
    if (words.size() < 2 || words.size() > 3 || !team) {
        std::cerr << "usage: orvanta_screens FOLDER [usual | wordy | silent | crowd]\n";
        return 2;
    }
    std::cout << "the desktop's windows are "
              << QApplication::palette().window().color().name().toStdString();
    QCoreApplication::setApplicationName(QStringLiteral("Orvanta"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    orvanta::desktop::applyTheme(application);
    Album album(words.at(1));
    if (team == Team::Usual)
        takeUsualSession(album);
    else
        takeSessionOf(*team, album);
    std::cout << ", " << album.count() << " pictures in " << words.at(1).toStdString() << '\n';
    return album.isWhole() ? 0 : 1;
}
