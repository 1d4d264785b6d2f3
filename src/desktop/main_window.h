#pragma once

#include <QPainter>
#include <unordered_map>

#include "core/session_state.h"
#include "desktop/control_area.h"
#include "desktop/label_view.h"
#include "desktop/statement_list_view.h"
#include "desktop/whereabouts_view.h"
#include "sessionfiles/merging.h"

namespace orvanta::desktop {

/// frmMain as a person sees it: every control of the model as a widget of the same name.
class MainWindow : public ControlArea {
public:
    /// The program must outlive the window's use.
    explicit MainWindow(Program& program);

    /// Tells of a save that failed in the line at the head, until the next press in this window.
    /// The saves must outlive the window's use.
    void tellOf(RescuedSaves& saves);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;

private:
    void makePanels();
    void makePanel(Panel& panel);
    void makeButtons();
    void makeOthers();
    void tellShortcuts();
    void makeLink(Label& label, LinkView::Ground ground, void (*clicked)(Program&));
    void makeMergeLink();
    void makeWhereabouts();
    void drawModuleBar(QPainter& painter);
    void makeByKind(Control& control, ControlArea& area);
    void orderTabs();
    ControlArea& areaOf(const Control& control);

    void showSize();
    void showShown();
    void screenMayDiffer();
    void focusScreen();
    void personActs();
    void forgetHiddenFocus();
    void goOnByKey();
    const Panel* screen() const;
    const Control* firstStop(const Panel& screen) const;

    Program& m_program;
    ControlSet m_ownControls;  // the window's own, of which the program knows nothing
    Label m_merge{m_ownControls, "lblMerge", std::string(mergeCaption)};
    Label m_whereabouts{m_ownControls, "lblWhereabouts"};
    WhereaboutsView* m_whereaboutsView = nullptr;
    RescuedSaves* m_saves = nullptr;
    std::unordered_map<const Panel*, ControlArea*> m_panels;
    const Panel* m_focusedScreen = nullptr;
    bool m_focusPending = false;
    bool m_wentOnByKey = false;  // the next text is typed without a look at the mouse
};

}  // namespace orvanta::desktop
