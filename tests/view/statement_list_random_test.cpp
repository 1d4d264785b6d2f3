#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "bench.h"
#include "failure_of.h"
#include "view/statement_list.h"

namespace orvanta::test {
namespace {

/// The same list, held as simply as can be.
struct SimpleList {
    ShownRows rows;
    int selected = 0;

    int positionOf(const std::string& key) const {
        const auto found = std::ranges::find(rows, key, &ShownRow::key);
        return key.empty() || found == rows.end() ? 0 : static_cast<int>(found - rows.begin()) + 1;
    }
    int findKeyEnding(const std::string& ending) const {
        const auto found = std::ranges::find_if(
            rows, [&](const ShownRow& row) { return row.key.ends_with(ending); });
        return found == rows.end() ? 0 : static_cast<int>(found - rows.begin()) + 1;
    }
    bool takes(const std::string& key) const { return positionOf(key) == 0; }
    int count() const { return static_cast<int>(rows.size()); }

    void insert(int position, ShownRow row) {
        if (selected >= position) ++selected;
        rows.insert(rows.begin() + position - 1, std::move(row));
    }
    void remove(int position) {
        rows.erase(rows.begin() + position - 1);
        if (selected > position) --selected;
        selected = std::min(selected, count());
    }
    void clear() {
        rows.clear();
        selected = 0;
    }
};

/// Does the same things to a list and to its simple counterpart.
class RandomWalk {
public:
    explicit RandomWalk(unsigned seed) : m_random(seed) {}

    void step() {
        const int place = upTo(m_simple.count()) + 1;
        const std::string key = upTo(5) == 0 ? "" : "S" + std::to_string(upTo(300));
        const int kind = upTo(100);
        if (kind < 45) {
            insert(place, key);
        } else if (kind < 46) {
            if (upTo(40) == 0) clear();
        } else if (m_simple.count() == 0 || place > m_simple.count()) {
            EXPECT_EQ(failureOf([&] { m_list.remove(place); }), indexOutOfBounds);
        } else if (kind < 75) {
            m_list.remove(place);
            m_simple.remove(place);
        } else if (kind < 85) {
            setKey(place, key);
        } else if (kind < 92) {
            m_list.setText(place, key);
            m_simple.rows[static_cast<std::size_t>(place) - 1].text = key;
        } else {
            m_list.select(place);
            m_simple.selected = place;
        }
    }

    void compare() {
        ASSERT_EQ(rowsOf(m_list), m_simple.rows);
        ASSERT_EQ(m_list.selected(), m_simple.selected);
        for (int i = 0; i <= 300; ++i) {
            const std::string key = "S" + std::to_string(i);
            ASSERT_EQ(m_list.positionOf(key), m_simple.positionOf(key)) << key;
            const std::string ending = std::to_string(i);
            ASSERT_EQ(m_list.findKeyEnding(ending, 1), m_simple.findKeyEnding(ending)) << ending;
        }
    }

    int longest = 0;

private:
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(m_random); }

    void insert(int place, const std::string& key) {
        const bool taken = !key.empty() && !m_simple.takes(key);
        EXPECT_EQ(failureOf([&] { m_list.insert(place, {.key = key, .text = "new"}); }),
                  taken ? keyNotUnique : 0);
        if (!taken) m_simple.insert(place, {key, "new"});
        longest = std::max(longest, m_simple.count());
    }
    void setKey(int place, const std::string& key) {
        std::string& held = m_simple.rows[static_cast<std::size_t>(place) - 1].key;
        const bool taken = !key.empty() && key != held && !m_simple.takes(key);
        EXPECT_EQ(failureOf([&] { m_list.setKey(place, key); }), taken ? keyNotUnique : 0);
        if (!taken) held = key;
    }
    void clear() {
        m_list.clear();
        m_simple.clear();
    }

    std::mt19937 m_random;
    ControlSet m_controls;
    StatementList m_list{m_controls, "list"};
    SimpleList m_simple;
};

TEST(RandomListChanges, LeaveTheRowsKeysAndSelectionOfASimpleList) {
    RandomWalk walk(20240229);
    for (int i = 0; i < 10'000; ++i) {
        walk.step();
        if (i % 50 == 0) walk.compare();
        if (testing::Test::HasFailure()) FAIL() << "at step " << i;
    }
    walk.compare();
    EXPECT_GT(walk.longest, 100);
}

}  // namespace
}  // namespace orvanta::test
