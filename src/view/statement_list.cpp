#include "view/statement_list.h"

#include <algorithm>
#include <cassert>

#include "view/failure.h"

namespace orvanta {

namespace {

constexpr std::uint64_t rankGap = std::uint64_t{1} << 20;
constexpr std::uint64_t firstRank = std::uint64_t{1} << 46;
constexpr std::uint64_t ranksEnd = std::uint64_t{1} << 48;

}  // namespace

StatementList::StatementList(ControlSet& owner, std::string name, AfterRemoval afterRemoval)
    : Control(owner, std::move(name), this), m_afterRemoval(afterRemoval) {}

/// Fails with IndexOutOfBounds.
std::size_t StatementList::indexOf(int position) const {
    if (position < 1 || position > count()) throw Failure(ErrorNumber::IndexOutOfBounds);
    return static_cast<std::size_t>(position) - 1;
}

int StatementList::positionOfRank(Rank rank) const {
    const auto found = std::ranges::lower_bound(m_rows, rank, {}, &Entry::rank);
    return static_cast<int>(found - m_rows.begin()) + 1;
}

int StatementList::positionOf(std::string_view key) const {
    const auto found = m_byKey.find(key);
    return found == m_byKey.end() ? 0 : positionOfRank(found->rank);
}

StatementList::KeyEnd StatementList::keyEndOf(std::string_view key) {
    KeyEnd end = 0;
    for (const char letter : key.substr(key.size() - std::min<std::size_t>(key.size(), 2)))
        end = static_cast<KeyEnd>(end << 8 | static_cast<unsigned char>(letter));
    return end;
}

int StatementList::findKeyEnding(std::string_view ending, int from) const {
    const KeyEnd compared = ending.size() > 1 ? 0xFFFF : ending.empty() ? 0 : 0xFF;
    const KeyEnd wanted = keyEndOf(ending);
    for (int position = from; position <= count(); ++position) {
        const Entry& entry = m_rows[static_cast<std::size_t>(position) - 1];
        if ((entry.keyEnd() & compared) == wanted && entry.row->key.ends_with(ending))
            return position;
    }
    return 0;
}

/// A rank between those of the neighbours of a place where a row is about to go in.
StatementList::Rank StatementList::rankFor(int position) {
    if (m_rows.empty()) return firstRank;
    const auto index = static_cast<std::size_t>(position) - 1;
    const Rank first = m_rows.front().rank(), last = m_rows.back().rank();
    if (index == 0 && first > rankGap) return first - rankGap;
    if (index == m_rows.size() && last < ranksEnd - rankGap) return last + rankGap;
    const Rank below = index == 0 ? 0 : m_rows[index - 1].rank();
    const Rank above = index == m_rows.size() ? ranksEnd : m_rows[index].rank();
    if (above - below > 1) return below + (above - below) / 2;
    spreadRanks();
    return rankFor(position);
}

/// Leaves room between all rows.
void StatementList::spreadRanks() {
    const int selectedPosition = selected();
    Rank rank = firstRank;
    for (Entry& row : m_rows) {
        row.place(rank += rankGap);
        if (!row.row->key.empty()) m_byKey.find(row.row->key)->rank = rank;
    }
    if (selectedPosition != 0) m_selected = entry(selectedPosition).rank();
}

void StatementList::refuseTakenKey(std::string_view key) const {
    if (!key.empty() && m_byKey.contains(key)) throw Failure(ErrorNumber::KeyNotUnique);
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

/// The row, to be changed here alone.
Row& StatementList::ownRow(int position) {
    RowPointer& row = m_rows[indexOf(position)].row;
    if (row->use_count() > 1) {
        const RowPointer copy = new SharedRow(*row);
        if (!row->key.empty()) m_byKey.find(row->key)->row = copy.get();
        row = copy;
    }
    return *row;
}

void StatementList::insertEntry(int position, RowPointer row) {
    if (position < 1 || position > count() + 1) throw Failure(ErrorNumber::IndexOutOfBounds);
    // All memory is asked for before the list changes, and before anybody is told that it will.
    const Rank rank = rankFor(position);
    if (m_rows.size() == m_rows.capacity()) m_rows.reserve(2 * m_rows.size() + 1);
    if (!row->key.empty() && !m_byKey.insert({row.get(), rank}).second)
        throw Failure(ErrorNumber::KeyNotUnique);
    tell(&StatementListObserver::rowAboutToBeInserted, position);
    m_rows.emplace(m_rows.begin() + (position - 1), std::move(row), rank);
    tell(&StatementListObserver::rowInserted, position);
}

void StatementList::addAll(const StatementList& other) {
    assert(&other != this);
    m_rows.reserve(m_rows.size() + other.m_rows.size());
    m_byKey.reserve(m_byKey.size() + other.m_byKey.size());
    for (const auto& entry : other.m_rows) insertEntry(count() + 1, entry.row);
}

void StatementList::remove(int position) {
    const Entry& gone = entry(position);
    tell(&StatementListObserver::rowAboutToBeRemoved, position);
    const bool wasSelected = gone.rank() == m_selected;
    if (!gone.row->key.empty()) m_byKey.erase(gone.row->key);
    m_rows.erase(m_rows.begin() + (position - 1));
    if (wasSelected) {
        const int next = std::min(position, count());
        const bool none = next == 0 || m_afterRemoval == AfterRemoval::SelectNone;
        m_selected = none ? 0 : entry(next).rank();
    }
    tell(&StatementListObserver::rowRemoved, position);
    if (wasSelected) tell(&StatementListObserver::selectionChanged);
}

void StatementList::clear() {
    if (m_rows.empty()) return;
    tell(&StatementListObserver::aboutToBeCleared);
    m_byKey.clear();
    m_rows.clear();
    m_selected = 0;
    tell(&StatementListObserver::cleared);
}

template <class Change>
void StatementList::changeRow(int position, Change change) {
    change(ownRow(position));
    tell(&StatementListObserver::rowChanged, position);
}

void StatementList::setKey(int position, std::string key) {
    if (row(position).key == key) return;
    refuseTakenKey(key);
    Row& row = ownRow(position);  // first, since it may find no memory
    if (!row.key.empty()) m_byKey.erase(row.key);
    row.key = std::move(key);
    Entry& changed = m_rows[indexOf(position)];
    changed.place(changed.rank());
    if (!row.key.empty()) m_byKey.insert({&row, changed.rank()});
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
    const Rank chosen = position == 0 ? 0 : entry(position).rank();
    if (chosen == m_selected) return;
    m_selected = chosen;
    tell(&StatementListObserver::selectionChanged);
}

}  // namespace orvanta
