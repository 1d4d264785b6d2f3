#include "view/modal_form.h"

#include <gtest/gtest.h>

namespace orvanta::test {
namespace {

TEST(ModalForm, TellsOnceThatItHasClosed) {
    ModalForm form;
    int closings = 0;
    form.closed.subscribe([&] { ++closings; });
    EXPECT_TRUE(form.open);
    form.close();
    form.close();
    EXPECT_FALSE(form.open);
    EXPECT_EQ(closings, 1);
}

}  // namespace
}  // namespace orvanta::test
