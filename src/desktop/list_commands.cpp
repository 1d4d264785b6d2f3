#include "desktop/list_commands.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMenu>
#include <cassert>
#include <vector>

#include "app/list_commands.h"
#include "desktop/conversions.h"
#include "desktop/enlargement.h"
#include "desktop/statement_row_painter.h"

namespace orvanta::desktop {

namespace {

/// The menu of one list and the keys of its commands.
class ListMenu : public QObject {
public:
    ListMenu(Program& program, const Control& list, QAbstractItemView& view)
        : QObject(&view), m_program(program), m_list(list), m_view(view) {
        view.setContextMenuPolicy(Qt::CustomContextMenu);
        connect(&view, &QWidget::customContextMenuRequested, this,
                [this](const QPoint& place) { show(m_view.viewport()->mapToGlobal(place)); });
        view.installEventFilter(this);
        // Whoever double-clicks wants to reword the row.
        connect(&view, &QAbstractItemView::doubleClicked, this,
                [this] { chooseByKey(QKeySequence(Qt::Key_F2)); });
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
        const QKeyCombination keys(pressed.modifiers() & ~Qt::KeypadModifier,
                                   static_cast<Qt::Key>(pressed.key()));
        return chooseByKey(QKeySequence(keys));
    }

    /// True if one of the commands has this key, offered or not.
    bool chooseByKey(const QKeySequence& key) {
        for (const ListCommand& command : commands()) {
            if (command.key.empty() || keysFrom(command.key) != key) continue;
            if (command.isOffered) command.choose(m_program);
            return true;
        }
        return false;
    }

    std::vector<ListCommand> commands() const { return listCommandsOf(m_program.frmMain, m_list); }

    void show(const QPoint& globalPlace) {
        auto* menu = new QMenu(&m_view);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        for (const ListCommand& command : commands()) {
            QAction* action = menu->addAction(lineOfMenu(command));
            // Queued: what a command brings up finds the menu gone.
            connect(
                action, &QAction::triggered, this, [this, command] { command.choose(m_program); },
                Qt::QueuedConnection);
            action->setEnabled(command.isOffered);
        }
        menu->popup(globalPlace);
    }

    static QString lineOfMenu(const ListCommand& command) {
        const int widest = enlarged(300);
        QString caption = QFontMetrics(QApplication::font())
                              .elidedText(lineOf(command.caption), Qt::ElideRight, widest)
                              .replace(u'&', QLatin1String("&&"));
        if (command.key.empty()) return caption;
        return caption + u'\t' + keysFrom(command.key).toString(QKeySequence::NativeText);
    }

    Program& m_program;
    const Control& m_list;
    QAbstractItemView& m_view;
};

}  // namespace

QKeySequence keysFrom(std::string_view keys) {
    return QKeySequence::fromString(fromCp1252(keys), QKeySequence::PortableText);
}

void offerListCommands(Program& program, QWidget& window) {
    for (const Control* list : program.frmMain.controls.all()) {
        if (listCommandsOf(program.frmMain, *list).empty()) continue;
        auto* view = window.findChild<QAbstractItemView*>(fromCp1252(list->name()));
        assert(view && "a list has commands and no view");
        new ListMenu(program, *list, *view);
    }
}

}  // namespace orvanta::desktop
