#include "desktop/list_commands.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QMenu>
#include <algorithm>
#include <cassert>
#include <vector>

#include "app/list_commands.h"
#include "desktop/conversions.h"

namespace orvanta::desktop {

namespace {

/// The menu of one list and the keys of its commands.
class ListMenu : public QObject {
public:
    ListMenu(Program& program, const Control& list, QAbstractItemView& view)
        : QObject(&view),
          m_program(program),
          m_list(list),
          m_view(view),
          m_commands(listCommandsOf(program.frmMain, list)) {
        view.setContextMenuPolicy(Qt::CustomContextMenu);
        connect(&view, &QWidget::customContextMenuRequested, this,
                [this](const QPoint& place) { show(m_view.viewport()->mapToGlobal(place)); });
        view.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        return event->type() == QEvent::KeyPress && take(*static_cast<QKeyEvent*>(event));
    }

private:
    /// True if the key is one of the menu's. Keys go through the list itself, so that they work
    /// whichever window is active.
    bool take(const QKeyEvent& pressed) {
        if (pressed.key() == Qt::Key_F10 && pressed.modifiers() == Qt::ShiftModifier) {
            const QPoint row = m_view.visualRect(m_view.currentIndex()).center();
            show(m_view.viewport()->mapToGlobal(row));
            return true;
        }
        if (pressed.key() != Qt::Key_Delete || pressed.modifiers() & ~Qt::KeypadModifier)
            return false;
        const auto command = std::ranges::find(m_commands, true, &ListCommand::onDeleteKey);
        if (command == m_commands.end()) return false;
        choose(*command);
        return true;
    }

    void choose(const ListCommand& command) {
        if (isOffered(m_program.frmMain, m_list, command)) command.choose(m_program);
    }

    void show(const QPoint& globalPlace) {
        auto* menu = new QMenu(&m_view);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        for (const ListCommand& command : m_commands) {
            QString line = fromCp1252(command.caption);
            if (command.onDeleteKey)
                line += u'\t' + QKeySequence(Qt::Key_Delete).toString(QKeySequence::NativeText);
            QAction* action = menu->addAction(line);
            // Queued: what a command brings up finds the menu gone.
            connect(
                action, &QAction::triggered, this, [this, &command] { choose(command); },
                Qt::QueuedConnection);
            action->setEnabled(isOffered(m_program.frmMain, m_list, command));
        }
        menu->popup(globalPlace);
    }

    Program& m_program;
    const Control& m_list;
    QAbstractItemView& m_view;
    const std::vector<ListCommand> m_commands;
};

}  // namespace

void offerListCommands(Program& program, QWidget& window) {
    for (const Control* list : program.frmMain.controls.all()) {
        if (listCommandsOf(program.frmMain, *list).empty()) continue;
        auto* view = window.findChild<QAbstractItemView*>(fromCp1252(list->name()));
        assert(view && "a list has commands and no view");
        new ListMenu(program, *list, *view);
    }
}

}  // namespace orvanta::desktop
