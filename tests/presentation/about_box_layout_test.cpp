#include <gtest/gtest.h>

#include "kept_layout.h"
#include "presentation/about_box.h"

namespace orvanta::test {

TEST(AboutBoxLayout, IsAsDesigned) {
    const FrmAbout form;
    expectKeptLayout("about", form.width, form.height, form.controls);
}

}  // namespace orvanta::test
