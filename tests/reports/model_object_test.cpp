#include "reports/model_object.h"

#include <gtest/gtest.h>

#include "failure_of.h"

namespace orvanta::test {
namespace {

TEST(ModelObject, KnowsNoMemberByItself) {
    documentmodel::ModelObject object;
    EXPECT_EQ(failureOf([&] { object.get("Range", {}); }), invalidCall);
    EXPECT_EQ(failureOf([&] { object.put("Bold", true); }), invalidCall);
    EXPECT_EQ(failureOf([&] { object.call("Select", {}); }), invalidCall);
}

TEST(ModelCollection, GivesItsItemsByOneNumberOrName) {
    const auto item = std::make_shared<documentmodel::ModelObject>();
    documentmodel::Collection items([&](const WordValue& which) {
        return documentmodel::valueOf<int>(which) == 1 ? item : nullptr;
    });
    EXPECT_EQ(items.get("Item", {1}), item);
    EXPECT_EQ(failureOf([&] { items.get("Item", {}); }), invalidCall);
    EXPECT_EQ(failureOf([&] { items.get("Item", {1, 2}); }), invalidCall);
    EXPECT_EQ(failureOf([&] { items.get("Count", {1}); }), invalidCall);
}

TEST(ModelArgument, IsTakenInItsOwnKindAlone) {
    const WordArguments arguments{1, std::string("text")};
    EXPECT_EQ(documentmodel::argument<int>(arguments, 0), 1);
    EXPECT_EQ(documentmodel::argument<WordText>(arguments, 1), "text");
    EXPECT_EQ(failureOf([&] { documentmodel::argument<bool>(arguments, 0); }), invalidCall);
    EXPECT_EQ(failureOf([&] { documentmodel::argument<int>(arguments, 2); }), invalidCall);
}

}  // namespace
}  // namespace orvanta::test
