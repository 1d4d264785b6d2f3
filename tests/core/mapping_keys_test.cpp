#include "core/mapping_keys.h"

#include <gtest/gtest.h>

#include "bench.h"

namespace orvanta::test {
namespace {

TEST(MappingKeys, JoinParentAndChild) {
    const std::string key = mappingRowKey("O1", "S12");
    EXPECT_EQ(key, "O1-S12");
    EXPECT_TRUE(mappingKeyFrom(key).isMapped);
    EXPECT_EQ(mappingKeyFrom(key).parent, "O1");
    EXPECT_EQ(mappingKeyFrom(key).child, "S12");
}

TEST(MappingKeys, OfTwoPartsMayHaveAnEmptyOne) {
    EXPECT_TRUE(mappingKeyFrom("-").isMapped);
    EXPECT_EQ(mappingKeyFrom("O1-").child, "");
    EXPECT_EQ(mappingKeyFrom("-S1").parent, "");
}

class TopRowKey : public testing::TestWithParam<std::string> {};
INSTANTIATE_TEST_SUITE_P(Of, TopRowKey, testing::Values("", "O1", "O1-S1-W1", "--"));

TEST_P(TopRowKey, IsAnyThatHasNotJustTwoParts) {
    EXPECT_FALSE(mappingKeyFrom(GetParam()).isMapped);
    EXPECT_EQ(mappingKeyFrom(GetParam()).child, "");
}

TEST(MappedKind, IsAStrengthWhereTheSecondPartBeginsWithS) {
    for (const char* key : {"O1-S1", "T2-S", "O1-Sx-W1", "-S"})
        EXPECT_EQ(mappedKindOf(key), StatementKind::Strength) << key;
}

TEST(MappedKind, IsAWeaknessOtherwise) {
    for (const char* key : {"O1-W1", "S1-W1", "S1", "", "O1-s1", "O1-W1-S1", "O1-"})
        EXPECT_EQ(mappedKindOf(key), StatementKind::Weakness) << key;
}

/// A mapping list with rows of these keys, each with its key as its text.
class MappingRows : public testing::Test {
protected:
    void fill(const Texts& keys) {
        for (const std::string& key : keys) list.add({.key = key, .text = key});
    }
    Bench bench;
    StatementList& list = bench.list("lvOpportunity");
};

TEST_F(MappingRows, AreUnderAParentWhoseKeyAndAHyphenTheyHold) {
    fill({"O1", "O2", "O2-W1"});
    EXPECT_FALSE(hasMappedRows(list, "O1"));
    EXPECT_TRUE(hasMappedRows(list, "O2"));
}

TEST_F(MappingRows, AreTakenForThoseOfAParentWhoseKeyEndsAnotherOne) {
    fill({"1", "O1", "O1-S1"});
    EXPECT_TRUE(hasMappedRows(list, "1"));
}

TEST_F(MappingRows, TakeTheNewTextOfTheirStatementUnderEveryParent) {
    fill({"O1", "O1-S1", "O1-S11", "O2", "O2-S1", "O2-S1-S1"});
    setTextOfMappedRows(list, "S1", "new");
    EXPECT_EQ(bench.texts("lvOpportunity"),
              (Texts{"O1", "new", "O1-S11", "O2", "new", "O2-S1-S1"}));
}

TEST_F(MappingRows, TakeTheTextOfTheirWholeKeyAlone) {
    fill({"O1", "O1-S1", "O11"});
    setTextOfTopRows(list, "O1", "new");
    setTextOfTopRows(list, "O9", "nowhere");
    EXPECT_EQ(bench.texts("lvOpportunity"), (Texts{"new", "O1-S1", "O11"}));
}

}  // namespace
}  // namespace orvanta::test
