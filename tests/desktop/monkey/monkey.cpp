#include "monkey.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <algorithm>

#include "app/window_events.h"
#include "core/kind_controls.h"
#include "core/mapping_side.h"
#include "core/modules.h"
#include "hand.h"
#include "row_drag.h"

namespace orvanta::monkey {

using namespace orvanta::desktop;

namespace {

constexpr std::size_t longestStory = 40;

struct Pressed {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

const std::array plainKeys{Pressed{Qt::Key_Tab},
                           Pressed{Qt::Key_Backtab, Qt::ShiftModifier},
                           Pressed{Qt::Key_Down},
                           Pressed{Qt::Key_Up},
                           Pressed{Qt::Key_Left},
                           Pressed{Qt::Key_Right},
                           Pressed{Qt::Key_Home},
                           Pressed{Qt::Key_End},
                           Pressed{Qt::Key_Return},
                           Pressed{Qt::Key_Space},
                           Pressed{Qt::Key_Escape},
                           Pressed{Qt::Key_A},
                           Pressed{Qt::Key_Y, Qt::AltModifier}};

const std::array windowKeys{Pressed{Qt::Key_PageDown},
                            Pressed{Qt::Key_PageUp},
                            Pressed{Qt::Key_Return, Qt::ControlModifier},
                            Pressed{Qt::Key_Enter, Qt::KeypadModifier},
                            Pressed{Qt::Key_F1},
                            Pressed{Qt::Key_F2},
                            Pressed{Qt::Key_Delete},
                            Pressed{Qt::Key_Backspace},
                            Pressed{Qt::Key_M, Qt::ControlModifier},
                            Pressed{Qt::Key_Up, Qt::AltModifier},
                            Pressed{Qt::Key_Down, Qt::AltModifier},
                            Pressed{Qt::Key_A, Qt::ControlModifier},
                            Pressed{Qt::Key_X, Qt::ControlModifier},
                            Pressed{Qt::Key_V, Qt::ControlModifier},
                            Pressed{Qt::Key_F10, Qt::ShiftModifier},
                            Pressed{Qt::Key_Menu},
                            Pressed{Qt::Key_O}};

const std::array undoKeys{Pressed{Qt::Key_Z, Qt::ControlModifier},
                          Pressed{Qt::Key_Y, Qt::ControlModifier}};

const std::array texts{"Loyal customers",
                       "Our own fleet",
                       "a & b",
                       "<b>low</b> costs",
                       "&lt;",
                       "Gr\u00F6\u00DFe 5 \u20AC",
                       "\u65E5\u672C",
                       "  blanks  ",
                       "\"quoted\"",
                       "S1",
                       "O1-S1",
                       "",
                       "1/2: why?",
                       "C:\\name*",
                       "tab\tand\nline"};

/// How often a widget is clicked, beside the others.
int weightOf(const QWidget& widget) {
    const QString name = widget.objectName();
    if (name.endsWith("Next")) return 12;
    if (name.endsWith("Add")) return 6;
    if (name.endsWith("Open") || name.endsWith("OAFile")) return 3;
    return name.startsWith("opt") ? 3 : 2;
}

}  // namespace

template <std::size_t Count>
const Monkey::Act& Monkey::choose(const std::array<Act, Count>& acts) {
    int all = 0;
    for (const Act& act : acts) all += act.weight;
    int left = m_chance.below(all);
    const Act* chosen = acts.data();
    while (left >= chosen->weight) left -= (chosen++)->weight;
    return *chosen;
}

void Monkey::note(const std::string& act) {
    m_story.push_back(act);
    if (m_story.size() > longestStory) m_story.pop_front();
}

FrmMain& Monkey::form() const { return m_program->frmMain; }

/// What a person works on; null on the home screen.
const Panel* Monkey::screen() const {
    const Panel* module = form().moduleScreens.top();
    if (!module) return nullptr;
    const PanelStack& steps =
        module == &form().fraBrainstorm ? form().brainstormSteps : form().analyzeSteps;
    return steps.top() ? steps.top() : module;
}

/// Behind the end of what stood in front it waits until the program goes on.
void Monkey::actInFront() {
    if (!m_window) return actOnSplash();
    if (QApplication::activePopupWidget() || QApplication::activeModalWidget()) act();
}

void Monkey::act() {
    ++m_tally.acts;
    if (QWidget* menu = QApplication::activePopupWidget()) return actOnMenu(*menu);
    if (QWidget* dialog = QApplication::activeModalWidget()) return actOnDialog(*dialog);
    ++m_tally.screens[screen() ? screen()->name() : "home"];
    actOnWindow();
}

void Monkey::actOnWindow() {
    static constexpr std::array<Act, 16> acts{{{20, "go on", &Monkey::goOn},
                                               {12, "click a widget", &Monkey::clickAWidget},
                                               {5, "click anywhere", &Monkey::clickAnywhere},
                                               {2, "press and leave", &Monkey::pressAndLeave},
                                               {14, "answer", &Monkey::answerInABox},
                                               {3, "type", &Monkey::typeSomewhere},
                                               {3, "paste", &Monkey::pasteSomewhere},
                                               {18, "key", &Monkey::pressAKey},
                                               {18, "drag", &Monkey::dragARow},
                                               {6, "menu", &Monkey::openAMenu},
                                               {3, "double click", &Monkey::doubleClickARow},
                                               {4, "hover", &Monkey::hover},
                                               {3, "wheel", &Monkey::turnTheWheel},
                                               {3, "resize", &Monkey::resize},
                                               {1, "close", &Monkey::close},
                                               {4, "tick", &Monkey::tick}}};
    if (!m_window->isActiveWindow()) QApplication::setActiveWindow(m_window);
    const Act& act = choose(acts);
    note(act.name);
    (this->*act.perform)();
}

/// What leads to the next screen.
void Monkey::goOn() {
    const Panel* shown = screen();
    if (!shown) return goOnFromHome();
    if (shown == &form().fraBrainstorm) {
        if (form().txtName.text().empty()) return answerInABox();
        if (!chosenModule(form())) return clickAWidget();
        return clickButton("BNext");
    }
    if (shown == &form().fraAnalyze && form().lstFiles.items().size() < 2)
        return clickButton(m_chance.oneIn(5) ? "OAFile" : "AFAdd");
    const bool mapping =
        shown == &form().fraAnalyzeOpportunity || shown == &form().fraAnalyzeThreat;
    if (mapping && !m_chance.oneIn(12)) return dragARow();
    clickButton(form().fraAnalyze.isReachable() ? "ANext" : "BNext");
}

void Monkey::goOnFromHome() { clickButton(m_chance.oneIn(3) ? "Brainstorm" : "Analyze"); }

void Monkey::clickButton(const std::string& base) {
    note("click " + base);
    auto* button = m_window->findChild<QWidget*>(QString::fromStdString("imgBtn" + base));
    if (button && button->isVisible()) Hand::click(*button);
}

/// What can be clicked.
std::vector<QWidget*> Monkey::targets() const {
    std::vector<QWidget*> targets;
    for (QWidget* widget : m_window->findChildren<QWidget*>()) {
        const bool isTarget = qobject_cast<QAbstractButton*>(widget) ||
                              qobject_cast<QLineEdit*>(widget) ||
                              qobject_cast<QAbstractItemView*>(widget->parentWidget());
        if (!isTarget || !widget->isVisible() || !widget->isEnabled() || widget->size().isEmpty())
            continue;
        const QString name = widget->objectName();
        if (!m_undoes && (name == "cmdUndo" || name == "cmdRedo")) continue;
        targets.insert(targets.end(), static_cast<std::size_t>(weightOf(*widget)), widget);
    }
    return targets;
}

void Monkey::clickAWidget() {
    auto all = targets();
    QWidget* widget = m_chance.pick(all);
    note("on " + widget->objectName().toStdString());
    const bool onSwitch =
        widget->objectName().startsWith("opt") || widget->objectName() == "chkMute";
    Hand::click(*widget, onSwitch ? QPoint(8, widget->height() / 2) : anyPlaceIn(*widget));
}

void Monkey::clickAnywhere() {
    static constexpr std::array buttons{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton,
                                        Qt::RightButton, Qt::MiddleButton};
    const QPoint place = anyPlaceIn(*m_window);
    const QWidget* under = m_window->childAt(place);
    if (!m_undoes && under &&
        (under->objectName() == "cmdUndo" || under->objectName() == "cmdRedo"))
        return;
    const Qt::MouseButton button = m_chance.pick(buttons);
    // The toolkit's menu of a scroll bar waits for a choice, and would wait for good.
    if (button == Qt::RightButton && qobject_cast<const QScrollBar*>(under)) return;
    Hand::click(*m_window, place, button);
}

void Monkey::pressAndLeave() {
    auto all = targets();
    QWidget* widget = m_chance.pick(all);
    if (qobject_cast<QAbstractItemView*>(widget->parentWidget())) return;
    note("on " + widget->objectName().toStdString());
    Hand::press(*widget, anyPlaceIn(*widget));
    Hand::moveTo(*m_window, anyPlaceIn(*m_window));
    Hand::release(*m_window, anyPlaceIn(*m_window));
}

QPoint Monkey::anyPlaceIn(const QWidget& widget) {
    return {m_chance.below(std::max(1, widget.width())),
            m_chance.below(std::max(1, widget.height()))};
}

QString Monkey::anyText() {
    QString text = QString::fromUtf8(m_chance.pick(texts));
    if (m_chance.oneIn(2)) text += QString::number(m_chance.below(100));
    return text;
}

void Monkey::answerInABox() {
    for (QLineEdit* box : m_window->findChildren<QLineEdit*>()) {
        if (!box->isVisible() || !box->isEnabled()) continue;
        const QString text = anyText();
        note("in " + box->objectName().toStdString() + " " + text.toStdString());
        Hand::click(*box);
        Hand::type(*m_window, text);
        if (!m_chance.oneIn(4)) Hand::key(*m_window, Qt::Key_Return);
        return;
    }
}

void Monkey::typeSomewhere() { Hand::type(*m_window, anyText()); }
void Monkey::pasteSomewhere() { Hand::paste(*m_window, anyText()); }
void Monkey::pressAKey() { pressAnyKeyIn(*m_window); }

void Monkey::pressAnyKeyIn(QWidget& widget) {
    const bool ofWindow = &widget == m_window && m_chance.oneIn(2);
    Pressed pressed = ofWindow ? m_chance.pick(windowKeys) : m_chance.pick(plainKeys);
    if (ofWindow && m_undoes && m_chance.oneIn(5)) pressed = m_chance.pick(undoKeys);
    // Space and Enter would press Undo or Redo where one of them has the keyboard.
    const QWidget* focus = widget.focusWidget();
    if (!m_undoes && focus &&
        (focus->objectName() == "cmdUndo" || focus->objectName() == "cmdRedo"))
        pressed = {Qt::Key_Tab};
    note("key " + std::to_string(pressed.key) + " with " +
         std::to_string(pressed.modifiers.toInt()) + " in " +
         (focus ? focus->objectName().toStdString() : "nothing"));
    Hand::key(widget, pressed.key, pressed.modifiers);
}

std::vector<StatementListView*> Monkey::lists(bool withRows) const {
    std::vector<StatementListView*> lists;
    for (QWidget* widget : m_window->findChildren<QWidget*>())
        if (auto* list = dynamic_cast<StatementListView*>(widget);
            list && list->isVisible() && (!withRows || list->model()->rowCount() > 0))
            lists.push_back(list);
    return lists;
}

QPoint Monkey::placeOnARow(StatementListView& view) {
    const int row = 1 + m_chance.below(view.model()->rowCount());
    view.scrollTo(view.indexAtPosition(row));
    const QRect place = view.visualRect(view.indexAtPosition(row)) & view.viewport()->rect();
    note("row " + std::to_string(row) + " of " + view.objectName().toStdString());
    return place.topLeft() + QPoint(m_chance.below(std::max(1, place.width())),
                                    m_chance.below(std::max(1, place.height())));
}

StatementListView* Monkey::listToDragFrom() {
    auto all = lists(true);
    return all.empty() ? nullptr : m_chance.pick(all);
}

/// Mostly another list, where a statement can be mapped.
StatementListView* Monkey::listToDropOn(StatementListView* from) {
    auto all = lists(false);
    const auto isMapping = [](const StatementListView* list) { return list->mappingCounts(); };
    const auto mapping = std::ranges::find_if(all, isMapping);
    if (mapping != all.end() && *mapping != from && !m_chance.oneIn(4)) return *mapping;
    return m_chance.pick(all);
}

/// As the lists see a drag whose motions the window system tells.
void Monkey::dragARow() {
    StatementListView* from = listToDragFrom();
    if (!from) return;
    const QPoint start = placeOnARow(*from);
    Hand::press(*from->viewport(), start);
    const auto list = [&](const StatementListView& view) -> StatementList& {
        for (Control* control : form().controls.all())
            if (fromCp1252(control->name()) == view.objectName())
                return *control->as<StatementList>();
        std::abort();
    };
    if (list(*from).hasSelection()) {
        driver::RowDrag drag(list(*from));
        drag.moveOver(*from, start);
        drag.leave(*from);
        auto all = lists(false);
        for (int passed = m_chance.below(3); passed > 0; --passed) {
            StatementListView& view = *m_chance.pick(all);
            drag.moveOver(view, anyPlaceIn(*view.viewport()));
            drag.leave(view);
        }
        StatementListView& target = *listToDropOn(from);
        const bool onRow = target.model()->rowCount() > 0 && !m_chance.oneIn(6);
        const QPoint end = onRow ? placeOnARow(target) : anyPlaceIn(*target.viewport());
        if (drag.moveOver(target, end) && !m_chance.oneIn(10))
            drag.drop(target, end);
        else
            drag.leave(target);
        drag.finish(*m_program);  // the toolkit puts the release off until then
        Hand::release(*from->viewport(), start);
        return;
    }
    Hand::release(*from->viewport(), start);
}

void Monkey::openAMenu() {
    auto all = lists(false);
    if (all.empty() || m_chance.oneIn(6)) {
        QWidget& widget = *m_window;
        return Hand::click(widget, anyPlaceIn(widget), Qt::RightButton);
    }
    StatementListView& view = *m_chance.pick(all);
    const QPoint place =
        view.model()->rowCount() > 0 ? placeOnARow(view) : anyPlaceIn(*view.viewport());
    Hand::click(*view.viewport(), place, Qt::RightButton);
}

void Monkey::doubleClickARow() {
    if (StatementListView* view = listToDragFrom())
        Hand::doubleClick(*view->viewport(), placeOnARow(*view));
}

void Monkey::hover() {
    if (StatementListView* view = listToDragFrom(); view && !m_chance.oneIn(4))
        return Hand::moveTo(*view->viewport(), placeOnARow(*view));
    Hand::moveTo(*m_window, anyPlaceIn(*m_window));
}

void Monkey::turnTheWheel() {
    auto all = lists(false);
    if (all.empty()) return;
    QWidget& view = *m_chance.pick(all)->viewport();
    Hand::turnWheel(view, anyPlaceIn(view), m_chance.below(9) - 4);
}

void Monkey::resize() { m_window->resize(300 + m_chance.below(1400), 200 + m_chance.below(1000)); }
void Monkey::close() { m_window->close(); }
void Monkey::tick() { autoSaveTicked(*m_program); }

}  // namespace orvanta::monkey
