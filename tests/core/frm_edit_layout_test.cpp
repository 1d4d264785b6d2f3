#include <gtest/gtest.h>

#include "core/frm_edit.h"
#include "kept_layout.h"

namespace orvanta::test {

TEST(EditDialogLayout, IsAsDesigned) {
    const FrmEdit form;
    expectKeptLayout("edit", form.width, form.height, form.controls);
}

}  // namespace orvanta::test
