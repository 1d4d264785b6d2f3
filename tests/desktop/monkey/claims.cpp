#include "claims.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <algorithm>

#include "core/kind_controls.h"
#include "core/mapping_keys.h"
#include "core/mapping_side.h"
#include "core/statement_lists.h"
#include "desktop/conversions.h"
#include "desktop/statement_list_view.h"

namespace orvanta::monkey {

namespace {

using namespace orvanta::desktop;

using Words = std::vector<std::string>;

Words wordsOf(const StatementList& list, bool mapped) {
    Words words;
    for (int position = 1; position <= list.count(); ++position)
        if (const Row& row = list.row(position); mappingKeyFrom(row.key).isMapped == mapped)
            words.push_back(row.key + " " + row.subItem + row.text);
    return words;
}

/// What a person ranks in the main list stays as it was in the mapping list.
Words sorted(Words words) {
    std::ranges::sort(words);
    return words;
}

std::string strayMapping(const StatementList& mappings) {
    std::string_view parent;
    for (int position = 1; position <= mappings.count(); ++position) {
        const Row& row = mappings.row(position);
        const MappingKey key = mappingKeyFrom(row.key);
        if (!key.isMapped)
            parent = row.key;
        else if (key.parent != parent)
            return mappings.name() + " holds " + row.key + " under " + std::string(parent);
    }
    return {};
}

/// A mapped row says what the statement says that it comes from.
std::string mappedOtherwise(const FrmMain& form, const StatementList& mappings) {
    for (int position = 1; position <= mappings.count(); ++position) {
        const Row& row = mappings.row(position);
        const MappingKey key = mappingKeyFrom(row.key);
        if (!key.isMapped) continue;
        const StatementList& from = listOf(form, Session::Analyze, mappedKindOf(row.key));
        const int origin = from.positionOf(key.child);
        if (origin == 0 || from.row(origin).text != row.text)
            return mappings.name() + " holds " + row.key + " \"" + row.text + "\", " + from.name() +
                   " does not";
    }
    return {};
}

std::string companionOutOfStep(const StatementList& list, const StatementList& companion,
                               bool inOrder) {
    const Words own = wordsOf(list, false), other = wordsOf(companion, false);
    if (inOrder ? own == other : sorted(own) == sorted(other)) return {};
    return companion.name() + " is not in step with " + list.name();
}

template <class Check>
std::string firstOf(std::initializer_list<Check> checks) {
    for (const Check& check : checks)
        if (!check.empty()) return check;
    return {};
}

bool isUncovered(const Control& control) {
    const Control* holder = control.container();
    return control.isUncovered() && (!holder || isUncovered(*holder));
}

/// Each kind of control, as far as its widget shows more than where it is.
class Shown {
public:
    explicit Shown(MainWindow& window) : m_window(window) {}

    std::string wrongIn(Control& control) {
        m_widget = m_window.findChild<QWidget*>(fromCp1252(control.name()));
        if (!m_widget) return control.name() + " has no widget";
        if (m_widget->isVisible() != (m_window.isVisible() && isUncovered(control)))
            return control.name() + (m_widget->isVisible() ? " can be seen" : " can't be seen");
        if (m_widget->isEnabled() != control.isEnabled()) return control.name() + " is off or on";
        return std::visit([this](auto* kind) { return wrong(*kind); }, control.self());
    }

private:
    template <class Widget>
    Widget& widget() {
        return *static_cast<Widget*>(m_widget);
    }

    std::string unless(bool right, const Control& control, const QString& shown) const {
        return right ? "" : control.name() + " shows " + shown.toStdString();
    }

    std::string wrong(Control&) { return {}; }
    std::string wrong(TextBox& box) {
        const QString text = widget<QLineEdit>().text();
        return unless(text == fromCp1252(box.text()), box, text);
    }
    std::string wrong(Option& option) { return wrongSwitch(option); }
    std::string wrong(CheckBox& box) { return wrongSwitch(box); }
    std::string wrongSwitch(SwitchControl& control) {
        const bool on = widget<QAbstractButton>().isChecked();
        return unless(on == control.isOn(), control, on ? "on" : "off");
    }
    std::string wrong(ListBox& files) {
        auto& view = widget<QListWidget>();
        const auto chosen = view.selectedItems();
        const int row = chosen.isEmpty() ? -1 : view.row(chosen.front());
        return unless(
            view.count() == static_cast<int>(files.items().size()) && row == files.selectedIndex(),
            files, QString("%1 files, %2 chosen").arg(view.count()).arg(row));
    }
    std::string wrong(StatementList& list) {
        auto& view = widget<StatementListView>();
        const QModelIndexList chosen = view.selectionModel()->selectedIndexes();
        const int position = chosen.isEmpty() ? 0 : chosen.front().row() + 1;
        const int rows = view.model()->rowCount();
        return unless(rows == list.count() && chosen.size() <= 1 && position == list.selected(),
                      list, QString("%1 rows, %2 chosen").arg(rows).arg(position));
    }

    MainWindow& m_window;
    QWidget* m_widget = nullptr;
};

/// "Strengths 2, Weaknesses 0" and so on, counted here.
QString countsOf(const FrmMain& form, Session session) {
    QStringList counts;
    for (const StatementKind kind : statementKinds)
        counts << QString("%1 %2")
                      .arg(fromCp1252(nameOfSeveral(kind)))
                      .arg(wordsOf(listOf(form, session, kind), false).size());
    return counts.join(", ");
}

std::string wrongHeadLine(const FrmMain& form, MainWindow& window) {
    const auto* line = window.findChild<QLabel*>("lblWhereabouts");
    const Panel* module = form.moduleScreens.top();
    if (line->isVisible() != (module && window.isVisible())) return "the head line is on or off";
    if (!module) return {};
    const Session session = module == &form.fraBrainstorm ? Session::Brainstorm : Session::Analyze;
    if (line->text().contains(". " + countsOf(form, session) + ".")) return {};
    return "the head line says \"" + line->text().toStdString() + "\", not " +
           countsOf(form, session).toStdString();
}

}  // namespace

std::string outOfStep(const FrmMain& form) {
    for (const StatementKind kind : statementKinds) {
        const StatementList& list = listOf(form, Session::Analyze, kind);
        const auto side = sideOfParents(kind);
        for (const MappingSide each : mappingSides) {
            if (side && each != *side) continue;
            const StatementList& companion =
                side ? mappingList(form, each) : form.*sideControls[each].picking(kind);
            if (std::string wrong = companionOutOfStep(list, companion, !side); !wrong.empty())
                return wrong;
        }
    }
    for (const MappingSide side : mappingSides)
        if (std::string wrong = firstOf({strayMapping(mappingList(form, side)),
                                         mappedOtherwise(form, mappingList(form, side))});
            !wrong.empty())
            return wrong;
    return {};
}

std::string looseRecord(const FrmMain& form) {
    const auto isFilled = [](auto first, auto end) {
        return std::all_of(std::find(first, end, ""), end,
                           [](const std::string& record) { return record.empty(); });
    };
    // The redo stack is filled from its second entry on.
    const bool whole = isFilled(form.undoRecords.begin(), form.undoRecords.end()) &&
                       isFilled(form.redoRecords.begin() + 1, form.redoRecords.end());
    return whole ? "" : "the journal has a gap";
}

std::string wronglyShown(const Program& program, MainWindow& window) {
    for (Control* control : program.frmMain.controls.all())
        if (std::string wrong = Shown(window).wrongIn(*control); !wrong.empty()) return wrong;
    return wrongHeadLine(program.frmMain, window);
}

}  // namespace orvanta::monkey
