#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <utility>

namespace orvanta {

/// How many enumerators an enumeration has. Its last one is named Count and stands for none.
template <class Enum>
inline constexpr std::size_t countOf = static_cast<std::size_t>(Enum::Count);

/// All enumerators but Count, in their order.
template <class Enum>
inline constexpr auto allOf = [] {
    std::array<Enum, countOf<Enum>> all{};
    for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<Enum>(i);
    return all;
}();

/// One T for each enumerator. A table of fewer or more rows, or with its rows in another order
/// than the enumerators, does not compile.
template <class Enum, class T>
class PerEnum {
public:
    struct Row {
        Enum of;
        T value;
    };

    constexpr PerEnum() = default;

    template <std::size_t rows>
    consteval PerEnum(const Row (&table)[rows])
        : PerEnum(table, std::make_index_sequence<countOf<Enum>>{}) {
        static_assert(rows == countOf<Enum>, "a table has one row for each enumerator");
    }

    constexpr T& operator[](Enum which) { return m_values[indexOf(which)]; }
    constexpr const T& operator[](Enum which) const { return m_values[indexOf(which)]; }

    constexpr auto begin() { return m_values.begin(); }
    constexpr auto end() { return m_values.end(); }
    constexpr auto begin() const { return m_values.begin(); }
    constexpr auto end() const { return m_values.end(); }

    friend bool operator==(const PerEnum&, const PerEnum&) = default;

private:
    template <std::size_t rows, std::size_t... indices>
    consteval PerEnum(const Row (&table)[rows], std::index_sequence<indices...>)
        : m_values{inPlace(table[indices], indices)...} {}

    static consteval const T& inPlace(const Row& row, std::size_t index) {
        if (static_cast<std::size_t>(row.of) != index) throw "the rows stand in another order";
        return row.value;
    }

    static constexpr std::size_t indexOf(Enum which) {
        const auto index = static_cast<std::size_t>(which);
        assert(index < countOf<Enum>);
        return index;
    }

    std::array<T, countOf<Enum>> m_values{};
};

}  // namespace orvanta
