#include "core/kind_controls.h"

#include <gtest/gtest.h>

#include "bench.h"

namespace orvanta::test {
namespace {

TEST(SectionOfAFile, HoldsTheStatementsOfOneKind) {
    EXPECT_EQ(kindOfSection(Section::Strength), StatementKind::Strength);
    EXPECT_EQ(kindOfSection(Section::Weakness), StatementKind::Weakness);
    EXPECT_EQ(kindOfSection(Section::Opportunity), StatementKind::Opportunity);
    EXPECT_EQ(kindOfSection(Section::Threats), StatementKind::Threat);
}

TEST(SectionOfAFile, HoldsNoStatementsWhereItIsAnyOther) {
    for (const Section section : {Section::Step, Section::Name, Section::Module,
                                  Section::OpportunityMapping, Section::ThreatMapping})
        EXPECT_EQ(kindOfSection(section), std::nullopt) << wordOf(section);
}

TEST(ListOfASession, IsTheOneOfItsKind) {
    Bench bench;
    FrmMain& form = bench.form();
    EXPECT_EQ(&listOf(form, Session::Brainstorm, StatementKind::Threat), &form.lvBThreat);
    EXPECT_EQ(&listOf(form, Session::Analyze, StatementKind::Weakness), &form.lvAWeakness);
}

}  // namespace
}  // namespace orvanta::test
