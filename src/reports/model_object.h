#pragma once

#include <functional>
#include <string_view>

#include "reports/word_processor.h"
#include "view/failure.h"

namespace orvanta::documentmodel {

[[noreturn]] inline void refuseMember() { throw Failure(ErrorNumber::InvalidCall); }

template <class Kind>
const Kind& valueOf(const WordValue& value) {
    if (const Kind* found = std::get_if<Kind>(&value)) return *found;
    refuseMember();
}

template <class Kind>
const Kind& argument(const WordArguments& arguments, std::size_t index) {
    if (index >= arguments.size()) refuseMember();
    return valueOf<Kind>(arguments[index]);
}

/// Knows no member; each kind of object adds its own.
class ModelObject : public WordObject {
public:
    WordObjectPtr get(std::string_view, const WordArguments&) override { refuseMember(); }
    void put(std::string_view, const WordValue&) override { refuseMember(); }
    void call(std::string_view, const WordArguments&) override { refuseMember(); }
};

/// An object whose members are all set in one way.
class PropertyBag : public ModelObject {
public:
    using Put = std::function<void(std::string_view, const WordValue&)>;

    explicit PropertyBag(Put put) : m_put(std::move(put)) {}
    void put(std::string_view member, const WordValue& value) override { m_put(member, value); }

private:
    Put m_put;
};

/// A collection whose items are got by number.
class Collection : public ModelObject {
public:
    using Item = std::function<WordObjectPtr(const WordValue&)>;

    explicit Collection(Item item) : m_item(std::move(item)) {}
    WordObjectPtr get(std::string_view member, const WordArguments& arguments) override {
        if (member != "Item" || arguments.size() != 1) refuseMember();
        return m_item(arguments.front());
    }

private:
    Item m_item;
};

}  // namespace orvanta::documentmodel
