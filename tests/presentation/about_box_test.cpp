#include "presentation/about_box.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

TEST(AboutBox, NamesProductVersionAndSupport) {
    const FrmAbout form;
    EXPECT_EQ(form.caption, "About Orvanta");
    EXPECT_EQ(form.lblTitle.caption(), "ORVANTA");
    EXPECT_EQ(form.lblVersion.caption(), "Version : 3.13.100");
    EXPECT_EQ(form.Label1.caption(), "For Support:");
    EXPECT_EQ(form.cmdOK.caption(), "OK");
}

TEST(AboutBox, ClosesOnce) {
    FrmAbout form;
    int closings = 0;
    form.closed.subscribe([&] { ++closings; });
    form.close();
    form.close();
    EXPECT_FALSE(form.open);
    EXPECT_EQ(closings, 1);
}

TEST(AboutBox, ChangesNothingOfTheSession) {
    AnalysisBench bench;
    bench.next(2);
    const Json before = bench.answerTo({{"do", "state"}})["state"];
    bench.click("About");
    EXPECT_EQ(bench.answerTo({{"do", "state"}})["state"], before);
}

TEST(SupportLink, ShowsAndOpensTheSupportPage) {
    Bench bench;
    bench.start();
    const FrmAbout form;
    openSupportPage(bench.program());
    bench.play({{"do", "mute"}, {"on", false}});  // brings the event along
    EXPECT_EQ(bench.events(),
              Json::array({{{"event", "open"}, {"target", form.lblSupport.caption()}}}));
    EXPECT_EQ(form.lblSupport.caption(), "http://www.orvanta.example/support/");
}

TEST(AboutBox, IsShownAsLaidOutOnAnOrdinaryDisplay) {
    FrmAbout form;
    const FrmAbout design;
    shrinkForLargeFonts(form, 15);
    EXPECT_EQ(form.width.value, design.width.value);
    EXPECT_EQ(form.height.value, design.height.value);
    EXPECT_EQ(form.lblR.bounds().left.value, design.lblR.bounds().left.value);
    EXPECT_EQ(form.lblTitle.fontSize().value, design.lblTitle.fontSize().value);
}

struct LargeFonts {
    std::string name;
    double twipsPerPixel, heightFactor;
};
std::ostream& operator<<(std::ostream& out, const LargeFonts& fonts) { return out << fonts.name; }

class AboutBoxOnLargeFonts : public testing::TestWithParam<LargeFonts> {
protected:
    AboutBoxOnLargeFonts() { shrinkForLargeFonts(form, GetParam().twipsPerPixel); }
    double reduced(Twips length) const {
        return length.value - length.value * (15 - GetParam().twipsPerPixel) / 15;
    }
    FrmAbout form;
    const FrmAbout design;
};
INSTANTIATE_TEST_SUITE_P(At, AboutBoxOnLargeFonts,
                         testing::Values(LargeFonts{"TwelveTwips", 12, 2.5},
                                         LargeFonts{"TenTwips", 10, 2},
                                         LargeFonts{"SevenAndAHalfTwips", 7.5, 2}),
                         NameOfParameter());

TEST_P(AboutBoxOnLargeFonts, ShrinksItsHeightByAFactorOfItsOwn) {
    EXPECT_DOUBLE_EQ(form.width.value, reduced(design.width));
    EXPECT_DOUBLE_EQ(form.height.value,
                     design.height.value - design.height.value * GetParam().heightFactor / 15);
}

TEST_P(AboutBoxOnLargeFonts, ShrinksControlsAndLowersFonts) {
    EXPECT_DOUBLE_EQ(form.cmdOK.bounds().top.value, reduced(design.cmdOK.bounds().top));
    EXPECT_DOUBLE_EQ(form.cmdOK.bounds().height.value, reduced(design.cmdOK.bounds().height));
    EXPECT_DOUBLE_EQ(form.cmdOK.fontSize().value, design.cmdOK.fontSize().value - 2);
    EXPECT_DOUBLE_EQ(form.lblTitle.fontSize().value, design.lblTitle.fontSize().value - 2);
}

TEST_P(AboutBoxOnLargeFonts, PutsTheTrademarkSignBehindTheNarrowedTitle) {
    const Bounds& title = form.lblTitle.bounds();
    EXPECT_DOUBLE_EQ(form.lblR.bounds().left.value, title.left.value + title.width.value + 20);
}

}  // namespace
}  // namespace orvanta::test
