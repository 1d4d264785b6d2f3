#pragma once

#include <deque>
#include <map>
#include <set>
#include <string>

#include "chance.h"
#include "desktop/dialogs.h"
#include "desktop/file_chooser.h"
#include "desktop/main_window.h"
#include "sandbox.h"

namespace orvanta::monkey {

/// Does whatever a person could do to what is in front: the main window, a menu, a box, a dialog.
/// It tends to what leads on to the mapping screens. One seed, one row of acts.
class Monkey {
public:
    /// `files`: outside of it no file is chosen.
    Monkey(std::uint32_t seed, const Sandbox& files) : m_chance(seed), m_files(files) {}

    /// Whom it plays with from here on.
    void meet(Program& program, desktop::MainWindow& window) {
        m_program = &program;
        m_window = &window;
    }
    /// The window goes; until the next one there is but the splash.
    void leave() { m_window = nullptr; }
    /// Leaves Undo and Redo alone from here on, their keys too.
    void undoNothing() { m_undoes = false; }

    void act();
    /// The same on a menu, a box, a dialog or the splash alone.
    void actInFront();

    /// True now and then: the program is to end as a crash would end it.
    bool wantsToKill() { return m_chance.oneIn(400); }

    struct Tally {
        int acts = 0, boxes = 0, ticksBehindBoxes = 0;
        std::map<std::string, int> screens;  // acts on each, by the panel's name
    };
    const Tally& tally() const { return m_tally; }
    /// The last acts, the oldest first.
    const std::deque<std::string>& story() const { return m_story; }
    /// A copy was made while a box stood, since the last call.
    bool hasTickedBehindABox() { return std::exchange(m_tickedBehindABox, false); }

private:
    struct Act {
        int weight;
        const char* name;
        void (Monkey::*perform)();
    };
    template <std::size_t Count>
    const Act& choose(const std::array<Act, Count>& acts);
    void note(const std::string& act);
    const Panel* screen() const;
    FrmMain& form() const;

    // On the main window.
    void actOnWindow();
    void goOn();
    void goOnFromHome();
    void clickAWidget();
    void clickAnywhere();
    void pressAndLeave();
    void answerInABox();
    void typeSomewhere();
    void pasteSomewhere();
    void pressAKey();
    void dragARow();
    void openAMenu();
    void doubleClickARow();
    void hover();
    void turnTheWheel();
    void resize();
    void close();
    void tick();
    void clickButton(const std::string& base);
    std::vector<QWidget*> targets() const;
    std::vector<desktop::StatementListView*> lists(bool withRows) const;
    desktop::StatementListView* listToDragFrom();
    desktop::StatementListView* listToDropOn(desktop::StatementListView* from);
    QPoint placeOnARow(desktop::StatementListView& view);
    QPoint anyPlaceIn(const QWidget& widget);
    QString anyText();
    void pressAnyKeyIn(QWidget& widget);

    // On what stands in front of it.
    void actOnSplash();
    void actOnMenu(QWidget& menu);
    void actOnDialog(QWidget& dialog);
    void actOnMessage(desktop::MessageBox& box);
    void actOnFiles(desktop::FileChooser& chooser);
    void chooseAFile(desktop::FileChooser& chooser);
    void actOnEdit(desktop::EditDialog& dialog);
    void actOnReport(desktop::ReportDialog& dialog);
    void clickIn(QWidget& dialog, const char* name);
    void replaceTextIn(QLineEdit& box, const QString& text);
    void closeBox(QWidget& dialog);

    Chance m_chance;
    const Sandbox& m_files;
    Program* m_program = nullptr;
    desktop::MainWindow* m_window = nullptr;
    bool m_undoes = true, m_tickedBehindABox = false;
    Tally m_tally;
    std::deque<std::string> m_story;
};

}  // namespace orvanta::monkey
