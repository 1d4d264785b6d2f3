#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace orvanta {

class WordObject;
using WordObjectPtr = std::shared_ptr<WordObject>;

/// A text among the values. Where every alternative of a variant is a plain value or a library's
/// own string or pointer, GCC 12 takes a failed copy for a whole one and destroys it; a class of
/// ours keeps that from happening when there is too little memory for a text.
struct WordText : std::string {
    WordText(std::string text) : std::string(std::move(text)) {}
    WordText(const char* text) : std::string(text) {}
};

/// What an operation takes. Texts are Windows-1252; sizes are in points.
using WordValue = std::variant<bool, int, double, WordText, WordObjectPtr>;
using WordArguments = std::vector<WordValue>;

/// An object of a word processor's object model, reached by the names of its members alone:
/// Application, Document, Range, Table, Cell and so on. A member that an object does not have,
/// or arguments that it does not take, fail with InvalidCall.
class WordObject {
public:
    virtual ~WordObject() = default;

    /// The object that a property or a method gives.
    virtual WordObjectPtr get(std::string_view member, const WordArguments& arguments = {}) = 0;
    virtual void put(std::string_view member, const WordValue& value) = 0;
    virtual void call(std::string_view member, const WordArguments& arguments = {}) = 0;
};

class WordProcessors {
public:
    virtual ~WordProcessors() = default;
    /// A new instance of the word processor, not visible. Fails with CannotCreateObject.
    virtual WordObjectPtr createApplication() = 0;
};

/// An object variable of a script against the object model. One that holds nothing fails with
/// ObjectNotSet at every use.
class WordRef {
public:
    WordRef() = default;
    explicit WordRef(WordObjectPtr object) : m_object(std::move(object)) {}

    WordRef get(std::string_view member, const WordArguments& arguments = {}) const;
    /// An item of a collection, by number from 1 or by name.
    WordRef item(WordValue which) const { return get("Item", {std::move(which)}); }
    void put(std::string_view member, const WordValue& value) const;
    void call(std::string_view member, const WordArguments& arguments = {}) const;

    WordValue value() const { return m_object; }

private:
    WordObject& object() const;

    WordObjectPtr m_object;
};

}  // namespace orvanta
