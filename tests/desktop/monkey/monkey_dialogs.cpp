#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTreeView>

#include "app/window_events.h"
#include "hand.h"
#include "monkey.h"

namespace orvanta::monkey {

using namespace orvanta::desktop;

void Monkey::actOnSplash() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "frmSplash") Hand::key(*window, Qt::Key_Space);
}

void Monkey::actOnMenu(QWidget& menu) {
    static constexpr std::array keys{Qt::Key_Down,   Qt::Key_Down,   Qt::Key_Up,
                                     Qt::Key_Return, Qt::Key_Return, Qt::Key_Escape};
    note("in a menu");
    if (auto* actions = qobject_cast<QMenu*>(&menu); actions && m_chance.oneIn(2)) {
        const auto all = actions->actions();
        const QRect place = actions->actionGeometry(all.at(m_chance.below(all.size())));
        return Hand::click(menu, place.center());
    }
    Hand::key(menu, m_chance.pick(keys));
}

void Monkey::actOnDialog(QWidget& dialog) {
    if (m_chance.oneIn(40)) {
        note("tick behind a box");
        ++m_tally.ticksBehindBoxes;
        m_tickedBehindABox = true;
        return autoSaveTicked(*m_program);
    }
    if (m_chance.oneIn(40)) return Hand::click(*m_window, anyPlaceIn(*m_window));
    if (auto* box = dynamic_cast<MessageBox*>(&dialog)) return actOnMessage(*box);
    if (auto* chooser = dynamic_cast<FileChooser*>(&dialog)) return actOnFiles(*chooser);
    if (auto* edit = dynamic_cast<EditDialog*>(&dialog)) return actOnEdit(*edit);
    if (auto* report = dynamic_cast<ReportDialog*>(&dialog)) return actOnReport(*report);
    note("in another dialog");
    // No line tells of the page that the link opens.
    const bool isAtLink = dynamic_cast<LinkView*>(dialog.focusWidget());
    if (m_chance.oneIn(3) || isAtLink) return closeBox(dialog);
    pressAnyKeyIn(dialog);
}

void Monkey::closeBox(QWidget& dialog) {
    note("close " + dialog.objectName().toStdString());
    dialog.close();
}

void Monkey::actOnMessage(MessageBox& box) {
    note("box " + box.text().toStdString());
    ++m_tally.boxes;
    const auto buttons = box.buttons();
    if (m_chance.oneIn(8)) return closeBox(box);
    if (m_chance.oneIn(3)) return pressAnyKeyIn(box);
    Hand::click(*buttons.at(m_chance.below(buttons.size())));
}

void Monkey::clickIn(QWidget& dialog, const char* name) {
    auto* widget = dialog.findChild<QWidget*>(QLatin1String(name));
    if (widget->isVisible() && widget->isEnabled()) Hand::click(*widget);
}

void Monkey::replaceTextIn(QLineEdit& box, const QString& text) {
    Hand::click(box);
    Hand::key(box, Qt::Key_A, Qt::ControlModifier);
    Hand::key(box, Qt::Key_Delete);
    Hand::type(box, text);
}

void Monkey::actOnFiles(FileChooser& chooser) {
    note("files in " + chooser.directory().absolutePath().toStdString());
    const bool astray = !m_files.holds(chooser.directory().absolutePath().toStdString());
    if (astray) {
        if (m_chance.oneIn(2)) return Hand::key(chooser, Qt::Key_Escape);
        return replaceTextIn(*chooser.nameBox(),
                             QString::fromStdString(m_files.path("docs")) + '/');
    }
    if (m_chance.oneIn(12)) return closeBox(chooser);
    if (m_chance.oneIn(10)) return Hand::key(chooser, Qt::Key_Tab);
    chooseAFile(chooser);
}

void Monkey::chooseAFile(FileChooser& chooser) {
    static constexpr std::array names{
        "ann.bsm",   "bo",        "ann.bsm",        "team/zo\u00EB.bsm",
        "pedal.aze", "pedal",     "team",           "..",
        "~",         "new",       "new.bsm",        "other",
        "nosuch.x",  "team/mine", "../docs/bo.bsm", "./ann.bsm",
        "a\"b",      ""};
    const QString name = QString::fromUtf8(m_chance.pick(names));
    note("name " + name.toStdString());
    replaceTextIn(*chooser.nameBox(),
                  m_chance.oneIn(3) ? QString::fromStdString(m_files.path("docs/")) + name : name);
    if (QWidget* proposals = QApplication::activePopupWidget())
        Hand::key(*proposals, Qt::Key_Escape);
    if (!m_chance.oneIn(3)) return Hand::key(chooser, Qt::Key_Return);
    auto* buttons = chooser.findChild<QDialogButtonBox*>();
    for (QAbstractButton* button : buttons->buttons())
        if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
            return Hand::click(*button);
}

void Monkey::actOnEdit(EditDialog& dialog) {
    note("edit");
    auto& box = *dialog.findChild<QLineEdit*>("txtEdit");
    switch (m_chance.below(8)) {
        case 0:
            return closeBox(dialog);
        case 1:
            return pressAnyKeyIn(dialog);
        case 2:
            return clickIn(dialog, "imgBtnCancel");
        case 3:
            return clickIn(dialog, "imgBtnOk");
        case 4:
            return Hand::key(dialog, Qt::Key_Return);
        case 5:
            return Hand::paste(dialog, anyText());
        default:
            return replaceTextIn(box, anyText());
    }
}

void Monkey::actOnReport(ReportDialog& dialog) {
    note("report");
    switch (m_chance.below(10)) {
        case 0:
            return closeBox(dialog);
        case 1:
            return pressAnyKeyIn(dialog);
        case 2:
            return clickIn(dialog, "CancelButton");
        case 3:
        case 4:
            return clickIn(dialog, "OKButton");
        case 5:
            return clickIn(dialog, "cboFormat");
        case 6:
        case 7:
            return clickIn(dialog, "cmdBrowse");
        default:
            return replaceTextIn(*dialog.findChild<QLineEdit*>("txtEdit"),
                                 QString::fromStdString(m_files.path("docs/pedal.aze")));
    }
}

}  // namespace orvanta::monkey
