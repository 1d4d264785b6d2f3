#include "desktop/main_window.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cassert>
#include <utility>
#include <variant>

#include "app/home_steps.h"
#include "app/shortcuts.h"
#include "core/design_grid.h"
#include "desktop/art.h"
#include "desktop/clicks.h"
#include "desktop/enlargement.h"
#include "desktop/list_commands.h"
#include "desktop/main_layout.h"
#include "desktop/mirrors.h"
#include "desktop/screen_room.h"
#include "desktop/tab_order.h"
#include "desktop/theme.h"

namespace orvanta::desktop {

namespace {

constexpr int bandHeight = 64;

template <class... Acts>
struct Overloaded : Acts... {
    using Acts::operator()...;
};
template <class... Acts>
Overloaded(Acts...) -> Overloaded<Acts...>;

/// A panel: an opaque area of its own.
class PanelView : public ControlArea {
public:
    PanelView(Panel& model, ControlArea& parent) : ControlArea(parent.pixelGrid(), &parent) {
        setAutoFillBackground(true);
        mirrorControl(model, *this, parent);
        const auto showSize = [this, &model] {
            setDesignSize(model.bounds().width, model.bounds().height);
        };
        model.changed.subscribe(showSize);
        showSize();
        if (!model.stack()) return;
        model.changed.subscribe([&parent] { parent.showUncovered(); });
        model.raised.subscribe([this, &parent] {
            parent.showUncovered();
            raise();
            parent.raiseUncovered();
        });
    }
};

void drawBand(QPainter& painter, int width) {
    const QSize pattern = enlarged({320, bandHeight}), wordmark = enlarged({160, 32});
    const int left = enlarged(20), height = pattern.height();
    drawPicture(painter, {0, 0, width, height}, QStringLiteral("banner_fill"));
    drawPicture(painter, {QPoint(width - pattern.width(), 0), pattern},
                QStringLiteral("banner_pattern"));
    drawPicture(painter, {QPoint(left, (height - wordmark.height()) / 2), wordmark},
                QStringLiteral("wordmark"));
}

QRect placeOf(const SkinnedButton& button, const QWidget& window) {
    const auto* picture = window.findChild<QWidget*>(fromCp1252(button.image.name()));
    assert(picture);
    return picture->geometry();
}

/// Says beside the buttons what a person does with them; returns where the last one ends.
int drawSteps(QPainter& painter, const QRect& home, const ControlArea& window,
              const FrmMain& form) {
    const int margin = enlarged(24);
    constexpr Points size{9.75};
    painter.setFont(window.pixelGrid().font(size));
    painter.setPen(window.palette().color(QPalette::PlaceholderText));
    int end = home.top();
    for (const HomeStep& step : homeSteps) {
        const QRect button = placeOf(form.buttons[step.button], window);
        const QRect room(home.left() + margin, button.top(), home.width() - 2 * margin,
                         button.height());
        painter.drawText(room,
                         static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextWordWrap,
                         fromCp1252(step.words));
        end = button.bottom() + 1;
    }
    return end;
}

/// The mark of the product, smaller where there is little room.
void drawEmblem(QPainter& painter, const QRect& room) {
    constexpr QSize splash(480, 300);
    constexpr QRect emblem(150, 36, 300, 228);  // mark and name, without the ornament beside them
    const double scale =
        std::min(enlargement(), room.height() / static_cast<double>(emblem.height()));
    QRect shown(QPoint(), emblem.size() * scale);
    shown.moveCenter(room.center());
    painter.setClipRect(shown);
    drawPicture(painter, {shown.topLeft() - emblem.topLeft() * scale, splash * scale},
                QStringLiteral("splash"));
}

/// A button of the mouse or a key, but none that only goes with another: who turns to another
/// window by Alt and Tab is still to find what is told here.
bool isPress(const QEvent& event) {
    if (event.type() == QEvent::MouseButtonPress) return true;
    if (event.type() != QEvent::KeyPress) return false;
    constexpr std::array companions{Qt::Key_Shift, Qt::Key_Control, Qt::Key_Meta, Qt::Key_Alt};
    const int key = static_cast<const QKeyEvent&>(event).key();
    return std::ranges::find(companions, key) == companions.end();
}

}  // namespace

MainWindow::MainWindow(Program& program)
    : ControlArea(PixelGrid(program.platform.screen), nullptr), m_program(program) {
    FrmMain& form = program.frmMain;
    setObjectName(QStringLiteral("frmMain"));
    setAcceptDrops(true);  // to show what is dragged wherever it passes
    limitReach([&form](const Control& control) { return reachOf(form, control); });
    makePanels();
    makeButtons();
    makeOthers();
    makeWhereabouts();
    tellShortcuts();
    offerListCommands(program, *this);
    raiseUncovered();
    orderTabs();
    setFocus();  // no button seems chosen at first
    const auto showCaption = [this, &form] { setWindowTitle(fromCp1252(form.caption)); };
    form.captionChanged.subscribe(showCaption);
    form.sizeChanged.subscribe([this] { showSize(); });
    form.shownChanged.subscribe([this] { showShown(); });
    showCaption();
    showSize();
    if (screen()) screenMayDiffer();  // else a hidden window would lose the keyboard again
    if (form.shown) showShown();
}

void MainWindow::tellOf(RescuedSaves& saves) {
    m_saves = &saves;
    m_whereaboutsView->tellOf(saves);
    QCoreApplication::instance()->installEventFilter(this);
}

ControlArea& MainWindow::areaOf(const Control& control) {
    return control.container() ? *m_panels.at(control.container()) : *this;
}

void MainWindow::makePanels() {
    for (Control* control : m_program.frmMain.controls.all())
        if (auto* panel = control->as<Panel>()) makePanel(*panel);
}

void MainWindow::makePanel(Panel& panel) {
    m_panels[&panel] = new PanelView(panel, areaOf(panel));
    panel.changed.subscribe([this] { screenMayDiffer(); });
    if (panel.stack() == &m_program.frmMain.moduleScreens)
        panel.changed.subscribe([this] { update(); });
}

void MainWindow::makeButtons() {
    for (const Button button : allOf<Button>) {
        SkinnedButton& model = m_program.frmMain.buttons[button];
        makeSkinnedButton(model, areaOf(model.image),
                          {[this, button] {
                               personActs();
                               buttonPressed(m_program, button);
                           },
                           [this, button] {
                               buttonReleased(m_program, button);
                               m_whereaboutsView->mayDiffer();
                           }});
    }
}

/// Tells assistive programs the keys of each button, and goes on to the answer box when Next or
/// Back is pressed from the keyboard.
void MainWindow::tellShortcuts() {
    for (const Shortcut& shortcut : shortcutsOf(m_program.frmMain)) {
        auto* button = findChild<QAbstractButton*>(fromCp1252(shortcut.control->name()));
        assert(button);
        const QString keys = keysFrom(shortcut.keys).toString(QKeySequence::NativeText);
        const QString told = button->property("keys").toString();
        button->setProperty("keys", told.isEmpty() ? keys : told + QLatin1String(", ") + keys);
        describe(*shortcut.control, *button);
        if (shortcut.goesOn && told.isEmpty()) whenClicked(*button, [this] { goOnByKey(); });
    }
}

void MainWindow::makeOthers() {
    FrmMain& form = m_program.frmMain;
    makeCheckBox(form.chkMute, *this, [this](bool on) { muteClicked(m_program, on); });
    QPushButton* undo = makePushButton(form.cmdUndo, *this, [this] { undoClicked(m_program); });
    undo->setIcon(pictureIcon(QStringLiteral("undo")));
    QPushButton* redo = makePushButton(form.cmdRedo, *this, [this] { redoClicked(m_program); });
    redo->setIcon(pictureIcon(QStringLiteral("redo")));
    makeLink(form.lblDistribute, LinkView::Ground::Card, distributeClicked);
    makeMergeLink();
    makeFileList(form.lstFiles, areaOf(form.lstFiles),
                 [this](const std::string& path) { sourceFileDropped(m_program, path); });
    for (Control* control : form.controls.all()) {
        ControlArea& area = areaOf(*control);
        const QString name = fromCp1252(control->name());
        if (!area.findChild<QWidget*>(name, Qt::FindDirectChildrenOnly)) makeByKind(*control, area);
    }
}

void MainWindow::makeLink(Label& label, LinkView::Ground ground, void (*clicked)(Program&)) {
    ControlArea& area = areaOf(label);
    auto* link = new LinkView(label, ground, pixelGrid(), &area);
    whenClicked(*link, [this, clicked] { clicked(m_program); });
    mirrorControl(label, *link, area);
}

/// Below the buttons of the source files, wherever these are.
void MainWindow::makeMergeLink() {
    const Label& above = m_program.frmMain.buttons[Button::AFRemove].label;
    const Label& likeness = m_program.frmMain.lblDistribute;
    m_merge.setToolTip(std::string(mergeToolTip));
    m_merge.setContainer(above.container());
    m_merge.setCoveredBy(above.coveredBy());
    m_merge.setStretch(above.stretch());
    const auto follow = [this, &above, &likeness] {
        Bounds bounds = above.bounds();
        bounds.top = bounds.top + bounds.height * 1.25;
        m_merge.setFontSize(likeness.fontSize());
        m_merge.setBounds(bounds);
    };
    follow();
    m_program.frmMain.buttons[Button::AFRemove].label.changed.subscribe(follow);
    makeLink(m_merge, LinkView::Ground::Plain, mergeChosen);
}

/// Between the band and the module.
void MainWindow::makeWhereabouts() {
    const FrmMain& form = m_program.frmMain;
    constexpr double height = 36;
    m_whereabouts.setFontSize({9.75});
    m_whereabouts.setStretch({0, 0, 1, 0});
    m_whereaboutsView = new WhereaboutsView(m_program, m_whereabouts, pixelGrid(), this);
    mirrorControl(m_whereabouts, *m_whereaboutsView, *this);
    const auto follow = [this, &form] {
        const Bounds& module = form.fraBrainstorm.bounds();
        const Twips shown = module.top * (height / (bandHeight + height));
        m_whereabouts.setBounds({module.left, module.top - shown, form.width - module.left, shown});
    };
    m_program.frmMain.fraBrainstorm.changed.subscribe(follow);
    m_program.frmMain.sizeChanged.subscribe(follow);
    follow();
}

void MainWindow::makeByKind(Control& control, ControlArea& area) {
    const auto make = Overloaded{
        [&](StatementList* list) {
            mirrorControl(*list, *new StatementListView(m_program, *list, &area), area);
        },
        [&](TextBox* box) {
            makeTextBox(*box, area, [this, box](char character) {
                return characterTyped(m_program, *box, character);
            });
        },
        [&](Option* option) { makeOption(*option, area); },
        [&](Label* label) {
            const auto side = isHeading(m_program.frmMain, *label) ? Qt::AlignBottom : Qt::AlignTop;
            mirrorControl(*label, *new LabelView(*label, pixelGrid(), &area, side), area);
        },
        // Holds the art of others, unseen.
        [&](Image* image) { mirrorControl(*image, *new QWidget(&area), area); },
        [](Control*) { assert(false && "the window makes this kind by name"); },
    };
    std::visit(make, control.self());
}

/// Tab goes as the eye does. Ahead of all is the switch of the voice, which would talk over a
/// screen reader.
void MainWindow::orderTabs() {
    std::vector<QWidget*> stops = inReadingOrder(*this);
    std::stable_partition(
        stops.begin(), stops.end(),
        [voice = findChild<QCheckBox*>()](const QWidget* stop) { return stop == voice; });
    desktop::setTabOrder(*this, stops);
}

/// Another size can put other controls beside each other.
void MainWindow::resizeEvent(QResizeEvent* event) {
    ControlArea::resizeEvent(event);
    orderTabs();
}

void MainWindow::showSize() {
    const FrmMain& form = m_program.frmMain;
    setDesignSize(form.width, form.height);
    setMinimumSize(leastWindow().boundedTo(designSize()));
    resize(designSize().boundedTo(roomForWindow()));
}

void MainWindow::showShown() {
    setVisible(m_program.frmMain.shown);
    windowActivated(m_program);
}

void MainWindow::screenMayDiffer() {
    if (std::exchange(m_focusPending, true)) return;
    QTimer::singleShot(0, this, [this] { focusScreen(); });
}

/// The screen that a person works on; null for none.
const Panel* MainWindow::screen() const {
    const FrmMain& form = m_program.frmMain;
    const Panel* module = form.moduleScreens.top();
    if (!module) return nullptr;
    const PanelStack& steps =
        module == &form.fraBrainstorm ? form.brainstormSteps : form.analyzeSteps;
    return steps.top() ? steps.top() : module;
}

/// What gets the keyboard on a new screen: its text box, else its first list; null for neither.
const Control* MainWindow::firstStop(const Panel& screen) const {
    const Control* firstList = nullptr;
    for (const Control* control : m_program.frmMain.controls.all()) {
        if (control->container() != &screen || !control->isReachable()) continue;
        if (control->is<TextBox>()) return control;
        const bool isList = control->is<StatementList>() || control->is<ListBox>();
        if (isList && !firstList) firstList = control;
    }
    return firstList;
}

/// What was hidden while another window was active would still get the keys later.
void MainWindow::forgetHiddenFocus() {
    if (QWidget* former = focusWidget(); former && !former->isVisible()) former->clearFocus();
}

void MainWindow::focusScreen() {
    m_focusPending = false;
    forgetHiddenFocus();
    const Panel* shown = screen();
    const bool isNew = std::exchange(m_focusedScreen, shown) != shown;
    if (!shown || !(std::exchange(m_wentOnByKey, false) || isNew)) return;
    if (isNew)  // lists open at their first row, whatever came while they were out of sight
        for (QWidget* widget : m_panels.at(shown)->findChildren<QWidget*>())
            if (auto* list = dynamic_cast<StatementListView*>(widget)) list->scrollToTop();
    const Control* first = firstStop(*shown);
    if (!first) return;
    auto* widget = findChild<QWidget*>(fromCp1252(first->name()));
    assert(widget);
    widget->setFocus();
}

void MainWindow::goOnByKey() {
    m_wentOnByKey = true;
    focusScreen();  // at once: what was typed behind the key may be waiting
}

/// Keys that what has the keyboard has no use for. A list keeps the keys that turn its pages, also
/// at its ends.
void MainWindow::keyPressEvent(QKeyEvent* event) {
    const QKeyCombination pressed(
        event->modifiers() & ~Qt::KeypadModifier,
        event->key() == Qt::Key_Enter ? Qt::Key_Return : static_cast<Qt::Key>(event->key()));
    const bool turnsPages = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
    if (turnsPages && qobject_cast<QAbstractItemView*>(focusWidget())) return;
    for (const Shortcut& shortcut : shortcutsOf(m_program.frmMain)) {
        if (!shortcut.control->isReachable() || keysFrom(shortcut.keys) != pressed) continue;
        shortcut.choose(m_program);
        m_whereaboutsView->mayDiffer();
        if (shortcut.goesOn) goOnByKey();
        return;
    }
    ControlArea::keyPressEvent(event);
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) windowActivated(m_program);
    return ControlArea::event(event);
}

/// A press in a dialog is none: it may close the very box behind which the words have come up.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget && widget->window() == this && isPress(*event)) personActs();
    return ControlArea::eventFilter(watched, event);
}

/// Also by way of an assistive program, which presses neither key nor mouse.
void MainWindow::personActs() {
    if (m_saves) m_saves->forget();
}

void MainWindow::closeEvent(QCloseEvent* event) { event->setAccepted(windowClosing(m_program)); }

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    event->setAccepted(statementDragIn(*event));
}

void MainWindow::dragMoveEvent(QDragMoveEvent* event) {
    if (const StatementDrag* drag = statementDragIn(*event))
        drag->show(*this, event->position().toPoint(), {});
    event->ignore();
}

void MainWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::sideGround);
    drawBand(painter, width());
    const FrmMain& form = m_program.frmMain;
    drawModuleBar(painter);
    const QRect home =
        m_panels.at(&form.fraBrainstorm)->geometry().united(m_whereaboutsView->geometry());
    painter.fillRect(home, theme::paper);
    if (form.moduleScreens.hasVisible()) return;
    QRect room = home;
    room.setTop(drawSteps(painter, home, *this, form));
    drawEmblem(painter, room);
}

/// Beside the button of the module that is open.
void MainWindow::drawModuleBar(QPainter& painter) {
    const FrmMain& form = m_program.frmMain;
    const Panel* module = form.moduleScreens.top();
    if (!module) return;
    const Button opener = module == &form.fraBrainstorm ? Button::Brainstorm : Button::Analyze;
    const QRect place = placeOf(form.buttons[opener], *this);
    painter.fillRect(QRect(place.left() - enlarged(10), place.top(), enlarged(4), place.height()),
                     theme::deepBlue);
}

}  // namespace orvanta::desktop
