#include "desktop/list_menu.h"

#include <QKeyEvent>
#include <QMenu>
#include <functional>
#include <utility>

#include "core/list_commands.h"
#include "desktop/conversions.h"

namespace orvanta::desktop {

namespace {

void choose(Program& program, const Control& list, const ListCommand& command) {
    if (isOffered(list, command)) command.choose(program);
}

/// Chooses a command when the widget gets the Delete key.
class DeleteKey : public QObject {
public:
    DeleteKey(QWidget& widget, std::function<void()> chosen)
        : QObject(&widget), m_chosen(std::move(chosen)) {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        if (!static_cast<QKeyEvent*>(event)->matches(QKeySequence::Delete)) return false;
        m_chosen();
        return true;
    }

private:
    std::function<void()> m_chosen;
};

void showMenu(Program& program, const Control& list, QWidget& widget, const QPoint& place) {
    auto* menu = new QMenu(&widget);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const ListCommand& command : listCommandsOf(program.frmMain, list)) {
        QAction* action = menu->addAction(fromCp1252(command.caption));
        action->setEnabled(isOffered(list, command));
        // Queued: a command may open a dialog, which comes up best when the menu is gone.
        QObject::connect(
            action, &QAction::triggered, &widget,
            [&program, &list, command] { choose(program, list, command); }, Qt::QueuedConnection);
    }
    menu->popup(widget.mapToGlobal(place));
}

}  // namespace

void giveMenu(Program& program, Control& list, QWidget& widget) {
    const std::vector<ListCommand> commands = listCommandsOf(program.frmMain, list);
    if (commands.empty()) return;
    widget.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&widget, &QWidget::customContextMenuRequested, &widget,
                     [&](const QPoint& place) { showMenu(program, list, widget, place); });
    for (const ListCommand& command : commands)
        if (command.onDeleteKey)
            new DeleteKey(widget, [&program, &list, command] { choose(program, list, command); });
}

}  // namespace orvanta::desktop
