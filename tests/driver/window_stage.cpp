#include "window_stage.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

#include "app/window_events.h"
#include "desktop/conversions.h"
#include "desktop/dialogs.h"
#include "desktop/file_chooser.h"
#include "desktop/main_window.h"
#include "desktop/message_box.h"
#include "desktop/theme.h"
#include "row_drag.h"
#include "system_events.h"

namespace orvanta::driver {

namespace {

using namespace orvanta::desktop;

void send(QWidget& widget, QEvent::Type type, const QPoint& point, Qt::MouseButton button) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? button : Qt::NoButton;
    QMouseEvent event(type, point, widget.mapToGlobal(point), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

void mousePress(QWidget& widget, const QPoint& point) {
    send(widget, QEvent::MouseButtonPress, point, Qt::LeftButton);
}

void mouseRelease(QWidget& widget, const QPoint& point) {
    send(widget, QEvent::MouseButtonRelease, point, Qt::LeftButton);
}

void mouseClick(QWidget& widget, const QPoint& point) {
    mousePress(widget, point);
    mouseRelease(widget, point);
}

void keyClick(QWidget& widget, int key, const QString& text = {},
              Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QApplication::sendEvent(&widget, &event);
    }
}

void pressReturn(QWidget& widget) { keyClick(widget, Qt::Key_Return, QStringLiteral("\r")); }

/// Empties a box, then pastes a text into it.
void paste(QLineEdit& box, const std::string& text) {
    box.selectAll();
    keyClick(box, Qt::Key_Delete);
    if (text.empty()) return;
    QApplication::clipboard()->setText(fromCp1252(text));
    keyClick(box, Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
}

/// Where a radio button or a check box surely takes a click.
QPoint onIndicator(const QWidget& widget) { return {8, widget.height() / 2}; }

/// A point of the view outside every row, in or out of sight.
QPoint besideRows(const QAbstractItemView& view) {
    QPoint point = view.viewport()->rect().bottomLeft() + QPoint(view.viewport()->width() / 2, -2);
    while (view.indexAt(point).isValid()) point.ry() += view.viewport()->height();
    return point;
}

QPoint pointAt(StatementListView& view, int position) {
    if (position == 0) return besideRows(view);
    const QModelIndex index = view.indexAtPosition(position);
    view.scrollTo(index);
    return view.visualRect(index).center();
}

class WindowStage : public Stage {
public:
    WindowStage(int& argc, char** argv) : m_application(argc, argv) {
        QCoreApplication::setApplicationName(QStringLiteral("Orvanta"));
        QGuiApplication::setQuitOnLastWindowClosed(false);
        applyTheme(m_application);
    }

    void attach(Program& program) override {
        m_program = &program;
        m_window = std::make_unique<MainWindow>(program);
        m_systemEvents = std::make_unique<SystemEventsKeptOut>(*m_window);
    }

    void settle() override {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void type(TextBox& box, const std::string& text) override {
        auto& view = widgetOf<QLineEdit>(box);
        for (const char character : text) {
            view.end(false);
            const bool isEnter = character == '\r' || character == '\n';
            if (isEnter)
                pressReturn(view);
            else
                keyClick(view, Qt::Key_unknown, fromCp1252({&character, 1}));
        }
    }

    void replaceText(TextBox& box, const std::string& text) override {
        paste(widgetOf<QLineEdit>(box), text);
    }

    void pressEnter(TextBox& box) override { pressReturn(widgetOf<QLineEdit>(box)); }

    void press(Button button) override {
        QWidget& picture = pictureOf(button);
        mousePress(picture, picture.rect().center());
    }

    void release(Button button) override {
        QWidget& picture = pictureOf(button);
        mouseRelease(picture, picture.rect().center());
    }

    void click(Control& control) override {
        auto& button = widgetOf<QPushButton>(control);
        mouseClick(button, button.rect().center());
    }

    void choose(Option& option) override {
        auto& button = widgetOf<QRadioButton>(option);
        mouseClick(button, onIndicator(button));
    }

    void switchMute(bool on) override {
        auto& box = widgetOf<QCheckBox>(m_program->frmMain.chkMute);
        if (box.isChecked() != on) mouseClick(box, onIndicator(box));
    }

    void select(StatementList& list, int position) override {
        StatementListView& view = viewOf(list);
        if (position == 0)
            view.selectionModel()->clear();
        else
            mouseClick(*view.viewport(), pointAt(view, position));
    }

    void selectFile(int index) override {
        auto& files = widgetOf<QListWidget>(m_program->frmMain.lstFiles);
        if (index < 0) return files.selectionModel()->clear();
        files.scrollToItem(files.item(index));
        mouseClick(*files.viewport(), files.visualItemRect(files.item(index)).center());
    }

    void drag(StatementList& from, int row, const std::vector<StatementList*>& over,
              StatementList& to, int position) override {
        StatementListView& source = viewOf(from);
        const QPoint start = pointAt(source, row);
        mousePress(*source.viewport(), start);
        RowDrag drag(from);
        drag.moveOver(source, start);
        drag.leave(source);
        for (StatementList* passed : over) {
            StatementListView& view = viewOf(*passed);
            drag.moveOver(view, view.viewport()->rect().center());
            drag.leave(view);
        }
        StatementListView& target = viewOf(to);
        const QPoint end = pointAt(target, position);
        if (drag.moveOver(target, end))
            drag.drop(target, end);
        else
            drag.leave(target);
        drag.finish(*m_program);
    }

    void hover(StatementList& list, int position) override {
        StatementListView& view = viewOf(list);
        send(*view.viewport(), QEvent::MouseMove, pointAt(view, position), Qt::NoButton);
    }

    void chooseFromMenu(Control& list, const ListCommand& command) override {
        auto& view = widgetOf<QAbstractScrollArea>(list);
        const QPoint place = view.viewport()->rect().center();
        QContextMenuEvent asks(QContextMenuEvent::Mouse, place, view.mapToGlobal(place));
        QApplication::sendEvent(view.viewport(), &asks);
        auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu) return;
        const auto commands = listCommandsOf(m_program->frmMain, list);
        const auto chosen = std::ranges::find(commands, command.caption, &ListCommand::caption);
        QAction* action = menu->actions().at(chosen - commands.begin());
        mouseClick(*menu, menu->actionGeometry(action).center());
    }

    void activate() override {
        QEvent event(QEvent::WindowActivate);
        QApplication::sendEvent(m_window.get(), &event);
    }

    void close() override { m_window->close(); }

    MessageAnswer answer(const Message& message, MessageAnswer answer) override {
        MessageBox box(message, owner());
        box.open();
        settle();
        QAbstractButton* button = box.buttonFor(answer);
        mouseClick(*button, button->rect().center());
        return box.answer();
    }

    std::optional<std::string> answer(const FileDialogRequest& request,
                                      const std::optional<std::string>& path) override {
        FileChooser chooser(request, FileRules::Off, owner());
        chooser.open();
        QApplication::setActiveWindow(&chooser);  // also where no window manager does it
        chooser.nameBox()->setFocus();
        auto* buttons = chooser.findChild<QDialogButtonBox*>();
        if (!path) {
            QPushButton* cancel = buttons->button(QDialogButtonBox::Cancel);
            mouseClick(*cancel, cancel->rect().center());
            return std::nullopt;
        }
        paste(*chooser.nameBox(), *path);
        QPushButton* accept = buttons->button(
            request.mode == FileDialogMode::Open ? QDialogButtonBox::Open : QDialogButtonBox::Save);
        if (accept->isEnabled()) mouseClick(*accept, accept->rect().center());
        // The button is off for the folder that is open; once that has been read it may go off
        // under the mouse.
        if (chooser.isVisible() && !accept->isEnabled()) pressReturn(*chooser.nameBox());
        if (chooser.result() != QDialog::Accepted) return std::nullopt;
        return toCp1252(chooser.typed());
    }

    void run(FrmEdit& form, const std::vector<EditStep>& steps) override {
        EditDialog dialog(*m_program, form, owner());
        dialog.show();
        settle();
        for (const EditStep& step : steps)
            if (form.open) act(dialog, step);
        dialog.close();
    }

    void run(FrmReportType& form, const std::vector<ReportStep>& steps) override {
        ReportDialog dialog(*m_program, form, owner());
        m_report = &dialog;
        dialog.show();
        settle();
        for (const ReportStep& step : steps)
            if (form.open && form.enabled) act(dialog, step);
        dialog.close();
        m_report = nullptr;
    }

    void run(FrmSplash& form) override {
        SplashDialog splash(*m_program, form);
        splash.show();
        settle();
        keyClick(splash, Qt::Key_Space, QStringLiteral(" "));
    }

    void run(FrmAbout& form) override {
        AboutDialog dialog(*m_program, form, owner());
        dialog.show();
        settle();
        dialog.close();
    }

    void repaint(FrmReportType&) override {
        if (m_report) m_report->repaint();
    }

    bool takePicture(const std::string& path) override {
        settle();
        if (!m_window || !m_window->isVisible()) return false;
        QPixmap picture = m_window->grab();
        QPainter painter(&picture);
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window != m_window.get() && window->isVisible() && window->isModal())
                painter.drawPixmap(m_window->rect().center() - window->rect().center(),
                                   window->grab());
        painter.end();
        return picture.save(QString::fromStdString(path), "PNG");
    }

private:
    template <class Widget>
    Widget& widgetOf(const Control& control) {
        return *static_cast<Widget*>(m_window->findChild<QWidget*>(fromCp1252(control.name())));
    }

    StatementListView& viewOf(const StatementList& list) {
        return widgetOf<StatementListView>(list);
    }

    QWidget& pictureOf(Button button) {
        return widgetOf<QWidget>(m_program->frmMain.buttons[button].image);
    }

    QWidget* owner() const {
        QWidget* dialog = QApplication::activeModalWidget();
        return dialog ? dialog : m_window.get();
    }

    void act(EditDialog& dialog, const EditStep& step) {
        auto& box = *dialog.findChild<QLineEdit*>(QStringLiteral("txtEdit"));
        const auto clickButton = [&dialog](const char* name) {
            auto* picture = dialog.findChild<QWidget*>(QLatin1String(name));
            mouseClick(*picture, picture->rect().center());
        };
        switch (step.act) {
            case EditStep::Act::Text:
                paste(box, step.text);
                break;
            case EditStep::Act::Ok:
                clickButton("imgBtnOk");
                break;
            case EditStep::Act::Cancel:
                clickButton("imgBtnCancel");
                break;
            case EditStep::Act::Enter:
                pressReturn(box);
                break;
            case EditStep::Act::Picture:
                takePicture(step.text);
                break;
        }
    }

    void act(ReportDialog& dialog, const ReportStep& step) {
        const auto clickButton = [&dialog](const char* name) {
            auto* button = dialog.findChild<QPushButton*>(QLatin1String(name));
            mouseClick(*button, button->rect().center());
        };
        switch (step.act) {
            case ReportStep::Act::Format:
                chooseFormat(*dialog.findChild<QComboBox*>(QStringLiteral("cboFormat")),
                             step.format);
                break;
            case ReportStep::Act::Text:
                paste(*dialog.findChild<QLineEdit*>(QStringLiteral("txtEdit")), step.text);
                break;
            case ReportStep::Act::Browse:
                clickButton("cmdBrowse");
                break;
            case ReportStep::Act::Ok:
                clickButton("OKButton");
                break;
            case ReportStep::Act::Cancel:
                clickButton("CancelButton");
                break;
            case ReportStep::Act::Picture:
                takePicture(step.text);
                break;
        }
    }

    static void chooseFormat(QComboBox& box, int format) {
        keyClick(box, Qt::Key_Home);
        for (int i = 0; i < format; ++i) keyClick(box, Qt::Key_Down);
    }

    QApplication m_application;
    Program* m_program = nullptr;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<SystemEventsKeptOut> m_systemEvents;
    ReportDialog* m_report = nullptr;
};

}  // namespace

std::unique_ptr<Stage> makeWindowStage(int& argc, char** argv) {
    return std::make_unique<WindowStage>(argc, argv);
}

}  // namespace orvanta::driver
