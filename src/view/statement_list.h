#pragma once

#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>
#include <boost/unordered/unordered_flat_set.hpp>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "view/control.h"

namespace orvanta {

struct Colour {
    std::uint8_t red, green, blue;

    friend bool operator==(const Colour&, const Colour&) = default;
};

/// One row of a statement list. Texts are Windows-1252.
struct Row {
    std::string key;  // unique in its list; empty: the row has none
    std::string text;
    int image = 0;  // the small picture, 1 strength to 4 threat
    int largeImage = 0;
    std::string subItem{};           // who said it, as "[name]: "; empty where nobody is named
    std::optional<Colour> colour{};  // none: the list's own
    int indent = 0;
};

/// Watches one statement list, row by row. Positions count from 1. What is told may be read; an
/// observer that is told of a list does not change that list, nor who watches it.
class StatementListObserver {
public:
    virtual ~StatementListObserver() = default;
    virtual void rowAboutToBeInserted(int) {}
    virtual void rowInserted(int) {}
    virtual void rowAboutToBeRemoved(int) {}
    virtual void rowRemoved(int) {}
    virtual void rowChanged(int) {}
    virtual void aboutToBeCleared() {}
    virtual void cleared() {}
    virtual void selectionChanged() {}
};

/// What is selected after the selected row itself was removed.
enum class AfterRemoval { SelectNeighbour, SelectNone };

/// An ordered list of statement rows with at most one of them selected. The rows are the
/// session's data. Positions count from 1.
///
/// Each row carries a rank that grows along the list. The key index tells the rank, and a position
/// is found by bisecting on the ranks. Beside the rank stand the last letters of the key, so that a
/// search by the end of keys leaves most rows where they are in memory. What a row says can be held
/// in common with rows of other lists, until one of them is changed.
class StatementList : public Control {
public:
    StatementList(ControlSet& owner, std::string name,
                  AfterRemoval afterRemoval = AfterRemoval::SelectNeighbour);

    int count() const { return static_cast<int>(m_rows.size()); }

    /// Fails with IndexOutOfBounds.
    const Row& row(int position) const { return *entry(position).row; }

    /// Position of the row with this key, from 1; 0 if the list has none.
    int positionOf(std::string_view key) const;

    /// Position of the first row, from this position on, whose key ends so; 0 if there is none.
    int findKeyEnding(std::string_view ending, int from) const;

    /// Fails with KeyNotUnique if the list holds the key already. The selection stays.
    void add(Row row) { insert(count() + 1, std::move(row)); }
    /// Adds all rows of another list. What they say takes no second place in memory until it is
    /// changed here or there. Fails with KeyNotUnique at the first key that this list holds
    /// already; the rows ahead of that one are in.
    void addAll(const StatementList& other);

    /// Adds the last row of another list, held in common like those. Fails with KeyNotUnique.
    void addLastOf(const StatementList& other) {
        insertEntry(count() + 1, other.entry(other.count()).row);
    }

    /// Adds a row at a position from 1 to count() + 1. Fails with IndexOutOfBounds or
    /// KeyNotUnique, the list unchanged.
    void insert(int position, Row row) { insertEntry(position, new SharedRow(std::move(row))); }

    /// Fails with IndexOutOfBounds.
    void remove(int position);
    void clear();

    /// Each fails with IndexOutOfBounds; setKey also with KeyNotUnique.
    void setKey(int position, std::string key);
    void setText(int position, std::string text);
    void setColour(int position, Colour colour);
    void setIndent(int position, int indent);

    /// Position of the selected row, from 1; 0 for none.
    int selected() const { return m_selected ? positionOfRank(m_selected) : 0; }
    bool hasSelection() const override { return m_selected != 0; }
    /// The selected row; null for none.
    const Row* selectedRow() const { return m_selected ? &row(selected()) : nullptr; }
    /// 0 selects none. Fails with IndexOutOfBounds.
    void select(int position);

    void watch(StatementListObserver& observer);

private:
    using Rank = std::uint64_t;    // from 1, below 2 to the 48th
    using KeyEnd = std::uint16_t;  // the last two letters of a key; 0 for those that are not there

    /// A row that counts the lists that hold it. All lists live in one thread.
    struct SharedRow : Row, boost::intrusive_ref_counter<SharedRow, boost::thread_unsafe_counter> {
        explicit SharedRow(Row row) : Row(std::move(row)) {}
    };
    using RowPointer = boost::intrusive_ptr<SharedRow>;

    struct Entry {
        RowPointer row;
        std::uint64_t rankAndKeyEnd;

        Entry(RowPointer pointer, Rank rank) : row(std::move(pointer)) { place(rank); }
        Rank rank() const { return rankAndKeyEnd >> 16; }
        KeyEnd keyEnd() const { return static_cast<KeyEnd>(rankAndKeyEnd); }
        void place(Rank rank) { rankAndKeyEnd = rank << 16 | keyEndOf(row->key); }
    };
    /// What the index holds of an entry. Both may change as long as the key does not.
    struct IndexEntry {
        mutable const Row* row;
        mutable Rank rank;
    };
    struct KeyHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view key) const {
            return std::hash<std::string_view>()(key);
        }
        std::size_t operator()(const IndexEntry& entry) const { return (*this)(entry.row->key); }
    };
    struct SameKey {
        using is_transparent = void;
        static std::string_view keyOf(std::string_view key) { return key; }
        static std::string_view keyOf(const IndexEntry& entry) { return entry.row->key; }
        bool operator()(const auto& one, const auto& other) const {
            return keyOf(one) == keyOf(other);
        }
    };

    static KeyEnd keyEndOf(std::string_view key);
    std::size_t indexOf(int position) const;
    const Entry& entry(int position) const { return m_rows[indexOf(position)]; }
    Row& ownRow(int position);
    void insertEntry(int position, RowPointer row);
    int positionOfRank(Rank rank) const;
    Rank rankFor(int position);
    void spreadRanks();
    void refuseTakenKey(std::string_view key) const;
    template <class Change>
    void changeRow(int position, Change change);
    template <class... Positions>
    void tell(void (StatementListObserver::*event)(Positions...), Positions... positions);
    bool isTelling() const { return m_tellingDepth > 0; }

    std::vector<Entry> m_rows;
    boost::unordered_flat_set<IndexEntry, KeyHash, SameKey> m_byKey;  // those that have a key
    Rank m_selected = 0;                                              // 0: none
    AfterRemoval m_afterRemoval;
    std::vector<StatementListObserver*> m_observers;
    int m_tellingDepth = 0;
};

}  // namespace orvanta
