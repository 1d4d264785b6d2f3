#include "reports/word_processor.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "failure_of.h"

namespace orvanta::test {
namespace {

/// Gives itself for each property and keeps what was asked of it.
class Noting : public WordObject, public std::enable_shared_from_this<Noting> {
public:
    WordObjectPtr get(std::string_view member, const WordArguments& arguments) override {
        note("get", member, arguments.size());
        return member == "Nothing" ? nullptr : shared_from_this();
    }
    void put(std::string_view member, const WordValue&) override { note("put", member, 1); }
    void call(std::string_view member, const WordArguments& arguments) override {
        note("call", member, arguments.size());
    }

    std::vector<std::string> notes;

private:
    void note(const std::string& how, std::string_view member, std::size_t arguments) {
        notes.push_back(how + ' ' + std::string(member) + ' ' + std::to_string(arguments));
    }
};

TEST(WordRef, HandsEveryUseOnToItsObject) {
    const auto object = std::make_shared<Noting>();
    const WordRef ref(object);
    ref.get("Cell", {1, 2}).put("Text", std::string("x"));
    ref.item(3).call("Delete");
    EXPECT_EQ(object->notes, (std::vector<std::string>{"get Cell 2", "put Text 1", "get Item 1",
                                                       "call Delete 0"}));
    EXPECT_EQ(std::get<WordObjectPtr>(ref.value()), object);
}

constexpr int objectNotSet = 91;

TEST(WordRef, ThatHoldsNothingFailsAtEveryUse) {
    const WordRef nothing;
    EXPECT_EQ(failureOf([&] { nothing.get("Range"); }), objectNotSet);
    EXPECT_EQ(failureOf([&] { nothing.put("Bold", true); }), objectNotSet);
    EXPECT_EQ(failureOf([&] { nothing.call("Quit"); }), objectNotSet);
    EXPECT_EQ(failureOf([&] { nothing.item(1); }), objectNotSet);
}

TEST(WordRef, ToAPropertyThatGaveNothingFailsOnlyWhenItIsUsed) {
    const WordRef got = WordRef(std::make_shared<Noting>()).get("Nothing");
    EXPECT_EQ(failureOf([&] { got.call("Select"); }), objectNotSet);
}

}  // namespace
}  // namespace orvanta::test
