#include "core/statement_lists.h"

#include <gtest/gtest.h>

#include <set>

#include "bench.h"

namespace orvanta::test {
namespace {

TEST(StatementLists, AreEveryListOfTheMainWindowOnce) {
    Bench bench;
    std::set<const Control*> listed, onForm;
    for (const ListMember list : statementLists) listed.insert(&(bench.form().*list));
    for (const Control* control : bench.form().controls.all())
        if (control->is<StatementList>()) onForm.insert(control);
    EXPECT_EQ(listed, onForm);
    EXPECT_EQ(statementLists.size(), 14u);
}

TEST(StatementLists, BeginWithThoseOfTheBrainstormSession) {
    EXPECT_EQ(statementLists.front(), &FrmMain::lvBStrength);
    EXPECT_EQ(statementLists[4], &FrmMain::lvAStrength);
    EXPECT_EQ(statementLists.back(), &FrmMain::lvThreat);
}

}  // namespace
}  // namespace orvanta::test
