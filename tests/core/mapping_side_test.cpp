#include "core/mapping_side.h"

#include <gtest/gtest.h>

#include "bench.h"

namespace orvanta::test {
namespace {

TEST(MappingSides, TakeOpportunitiesAndThreatsAsParents) {
    EXPECT_EQ(sideOfParents(StatementKind::Opportunity), orvanta::MappingSide::Opportunities);
    EXPECT_EQ(sideOfParents(StatementKind::Threat), orvanta::MappingSide::Threats);
    EXPECT_EQ(sideOfParents(StatementKind::Strength), std::nullopt);
    EXPECT_EQ(sideOfParents(StatementKind::Weakness), std::nullopt);
}

TEST(MappingSides, TakeStrengthsAndWeaknessesForMapping) {
    for (const StatementKind kind : statementKinds)
        EXPECT_NE(isMappable(kind), sideOfParents(kind).has_value()) << nameOf(kind);
    EXPECT_TRUE(isMappable(StatementKind::Strength));
    EXPECT_TRUE(isMappable(StatementKind::Weakness));
}

/// The names of the lists that a change of a kind goes on to.
Texts companionsOf(FrmMain& form, StatementKind kind) {
    Texts names;
    forEachCompanion(form, kind, [&](const StatementList& list) { names.push_back(list.name()); });
    return names;
}

TEST(Companions, AreBothPickingListsOrTheMappingListOfTheParents) {
    Bench bench;
    FrmMain& form = bench.form();
    EXPECT_EQ(companionsOf(form, StatementKind::Strength), (Texts{"lvStrengthOp", "lvStrengthTh"}));
    EXPECT_EQ(companionsOf(form, StatementKind::Weakness), (Texts{"lvWeaknessOp", "lvWeaknessTh"}));
    EXPECT_EQ(companionsOf(form, StatementKind::Opportunity), Texts{"lvOpportunity"});
    EXPECT_EQ(companionsOf(form, StatementKind::Threat), Texts{"lvThreat"});
}

}  // namespace
}  // namespace orvanta::test
