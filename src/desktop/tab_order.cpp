#include "desktop/tab_order.h"

#include <QRadioButton>
#include <algorithm>
#include <iterator>
#include <utility>

namespace orvanta::desktop {

namespace {

/// A control, or several that stay together.
struct Block {
    QRect place;
    std::vector<QWidget*> controls;
};
using Blocks = std::vector<Block>;

std::vector<QWidget*> controlsOf(const Blocks& blocks) {
    std::vector<QWidget*> controls;
    for (const Block& block : blocks)
        controls.insert(controls.end(), block.controls.begin(), block.controls.end());
    return controls;
}

bool belongTogether(const QWidget& one, const QWidget& other) {
    return qobject_cast<const QRadioButton*>(&one) && qobject_cast<const QRadioButton*>(&other) &&
           one.parent() == other.parent();
}

/// The block that a child of an area is or goes to.
void add(Blocks& blocks, QWidget& child) {
    if (const auto* area = dynamic_cast<const ControlArea*>(&child)) {
        Block block{.place = {}, .controls = inReadingOrder(*area)};
        for (const QWidget* control : block.controls)
            block.place |= QRect(control->mapTo(area->parentWidget(), QPoint()), control->size());
        if (!block.controls.empty()) blocks.push_back(std::move(block));
    } else if (child.focusPolicy() & Qt::TabFocus) {
        const auto block = std::ranges::find_if(blocks, [&child](const Block& other) {
            return belongTogether(child, *other.controls.front());
        });
        if (block == blocks.end()) return blocks.push_back({child.geometry(), {&child}});
        block->place |= child.geometry();
        block->controls.push_back(&child);
    }
}

/// Parts them where a line across leaves all of them whole: a horizontal one for rows, else a
/// vertical one for columns.
std::vector<Blocks> bandsOf(Blocks blocks, bool rows) {
    const auto begin = [rows](const Block& block) {
        return rows ? block.place.top() : block.place.left();
    };
    std::ranges::stable_sort(blocks, {}, begin);
    std::vector<Blocks> bands;
    int end = 0;
    for (Block& block : blocks) {
        const int blockEnd = rows ? block.place.bottom() : block.place.right();
        const bool isNew = bands.empty() || begin(block) > end;
        end = isNew ? blockEnd : std::max(end, blockEnd);
        if (isNew) bands.emplace_back();
        bands.back().push_back(std::move(block));
    }
    return bands;
}

Blocks ordered(const Blocks& blocks, bool rows, bool wasWhole = false) {
    std::vector<Blocks> bands = bandsOf(blocks, rows);
    const bool isWhole = bands.size() == 1;
    if (blocks.size() < 2 || (isWhole && wasWhole)) return blocks;
    Blocks all;
    for (const Blocks& band : bands)
        std::ranges::move(ordered(band, !rows, isWhole), std::back_inserter(all));
    return all;
}

}  // namespace

std::vector<QWidget*> inReadingOrder(const ControlArea& area) {
    Blocks blocks;
    for (QObject* child : area.children())
        if (auto* widget = qobject_cast<QWidget*>(child)) add(blocks, *widget);
    return controlsOf(ordered(blocks, true));
}

void setTabOrder(QWidget& window, const std::vector<QWidget*>& stops) {
    const Qt::FocusPolicy policy = window.focusPolicy();
    window.setFocusPolicy(Qt::TabFocus);  // else nothing can be told to follow the window itself
    QWidget* former = &window;
    for (QWidget* stop : stops) QWidget::setTabOrder(std::exchange(former, stop), stop);
    window.setFocusPolicy(policy);
}

}  // namespace orvanta::desktop
