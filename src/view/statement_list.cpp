#include "view/statement_list.h"

#include <algorithm>
#include <cassert>

#include "view/failure.h"

namespace orvanta {

namespace {

constexpr std::uint64_t rankGap = std::uint64_t{1} << 31;
constexpr std::uint64_t firstRank = std::uint64_t{1} << 62;

}  // namespace

StatementList::StatementList(ControlSet& owner, std::string name, AfterRemoval afterRemoval)
    : Control(owner, std::move(name), this), m_afterRemoval(afterRemoval) {}

StatementList::Entry& StatementList::entry(int position) const {
    if (position < 1 || position > count()) throw Failure(ErrorNumber::IndexOutOfBounds);
    return *m_rows[static_cast<std::size_t>(position) - 1];
}

int StatementList::positionOf(const Entry& entry) const {
    const auto found = std::ranges::lower_bound(m_rows, entry.rank, {}, &Entry::rank);
    return static_cast<int>(found - m_rows.begin()) + 1;
}

int StatementList::positionOf(std::string_view key) const {
    const auto found = m_byKey.find(key);
    return found == m_byKey.end() ? 0 : positionOf(**found);
}

/// A rank between those of the neighbours of a place where a row is about to go in.
std::uint64_t StatementList::rankFor(int position) {
    if (m_rows.empty()) return firstRank;
    const auto index = static_cast<std::size_t>(position) - 1;
    if (index == 0 && m_rows.front()->rank > rankGap) return m_rows.front()->rank - rankGap;
    if (index == m_rows.size() && m_rows.back()->rank < ~rankGap)
        return m_rows.back()->rank + rankGap;
    const std::uint64_t below = index == 0 ? 0 : m_rows[index - 1]->rank;
    const std::uint64_t above = index == m_rows.size() ? ~std::uint64_t{0} : m_rows[index]->rank;
    if (above - below > 1) return below + (above - below) / 2;

    std::uint64_t rank = firstRank;  // no room left between the two: spread all rows anew
    for (const auto& row : m_rows) row->rank = rank += rankGap;
    return rankFor(position);
}

void StatementList::refuseTakenKey(std::string_view key) const {
    if (!key.empty() && m_byKey.contains(key)) throw Failure(ErrorNumber::KeyNotUnique);
}

void StatementList::forgetKey(Entry& entry) {
    if (!entry.row->key.empty()) m_byKey.erase(&entry);
}

void StatementList::watch(StatementListObserver& observer) {
    assert(!isTelling() && "an observer is added by one that is being told");
    m_observers.push_back(&observer);
}

template <class... Positions>
void StatementList::tell(void (StatementListObserver::*event)(Positions...),
                         Positions... positions) {
    assert(!isTelling() && "an observer changes the list that it is told of");
    const Telling telling(m_tellingDepth);
    for (auto* observer : m_observers) (observer->*event)(positions...);
}

Row& StatementList::Entry::own() {
    if (row.use_count() > 1) row = std::make_shared<Row>(*row);
    return *row;
}

void StatementList::insertEntry(int position, std::shared_ptr<Row> row) {
    if (position < 1 || position > count() + 1) throw Failure(ErrorNumber::IndexOutOfBounds);
    // All memory is asked for before the list changes, and before anybody is told that it will.
    auto entry = std::make_unique<Entry>(Entry{std::move(row), rankFor(position)});
    if (m_rows.size() == m_rows.capacity()) m_rows.reserve(2 * m_rows.size() + 1);
    if (!entry->row->key.empty() && !m_byKey.insert(entry.get()).second)
        throw Failure(ErrorNumber::KeyNotUnique);
    tell(&StatementListObserver::rowAboutToBeInserted, position);
    m_rows.insert(m_rows.begin() + (position - 1), std::move(entry));
    tell(&StatementListObserver::rowInserted, position);
}

void StatementList::addAll(const StatementList& other) {
    assert(&other != this);
    m_rows.reserve(m_rows.size() + other.m_rows.size());
    m_byKey.reserve(m_byKey.size() + other.m_byKey.size());
    for (const auto& entry : other.m_rows) insertEntry(count() + 1, entry->row);
}

void StatementList::remove(int position) {
    Entry& gone = entry(position);
    tell(&StatementListObserver::rowAboutToBeRemoved, position);
    const bool wasSelected = &gone == m_selected;
    forgetKey(gone);
    m_rows.erase(m_rows.begin() + (position - 1));
    if (wasSelected) {
        const int next = std::min(position, count());
        const bool none = next == 0 || m_afterRemoval == AfterRemoval::SelectNone;
        m_selected = none ? nullptr : &entry(next);
    }
    tell(&StatementListObserver::rowRemoved, position);
    if (wasSelected) tell(&StatementListObserver::selectionChanged);
}

void StatementList::clear() {
    if (m_rows.empty()) return;
    tell(&StatementListObserver::aboutToBeCleared);
    m_byKey.clear();
    m_rows.clear();
    m_selected = nullptr;
    tell(&StatementListObserver::cleared);
}

template <class Change>
void StatementList::changeRow(int position, Change change) {
    change(entry(position).own());
    tell(&StatementListObserver::rowChanged, position);
}

void StatementList::setKey(int position, std::string key) {
    Entry& changed = entry(position);
    if (changed.row->key == key) return;
    refuseTakenKey(key);
    Row& row = changed.own();  // first, since it may find no memory
    forgetKey(changed);
    row.key = std::move(key);
    if (!changed.row->key.empty()) m_byKey.insert(&changed);
    tell(&StatementListObserver::rowChanged, position);
}

void StatementList::setText(int position, std::string text) {
    changeRow(position, [&](Row& row) { row.text = std::move(text); });
}

void StatementList::setColour(int position, Colour colour) {
    changeRow(position, [&](Row& row) { row.colour = colour; });
}

void StatementList::setIndent(int position, int indent) {
    assert(indent >= 0);
    changeRow(position, [&](Row& row) { row.indent = indent; });
}

void StatementList::select(int position) {
    Entry* chosen = position == 0 ? nullptr : &entry(position);
    if (chosen == m_selected) return;
    m_selected = chosen;
    tell(&StatementListObserver::selectionChanged);
}

}  // namespace orvanta
