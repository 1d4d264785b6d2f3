#include "core/messages.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

class Messages : public testing::Test {
protected:
    Messages() { bench.start(); }
    /// The message boxes since the last call.
    Json shown() {
        bench.play({{"do", "activate"}});
        return bench.events("message");
    }
    Bench bench;
    MessageBoxes& boxes = bench.program().platform.messages;
};

TEST_F(Messages, ThatRefuseBearTheStopSignAndTheNameOfTheProduct) {
    refuse(boxes, "No such file.");
    EXPECT_EQ(shown(), Json::array({{{"event", "message"},
                                     {"text", "No such file."},
                                     {"icon", "stop"},
                                     {"buttons", "ok"},
                                     {"default", "ok"},
                                     {"title", "Orvanta"},
                                     {"answer", "ok"}}}));
}

TEST_F(Messages, ThatInformBearTheInformationSignAndTheNameOfTheProduct) {
    inform(boxes, "All done.");
    EXPECT_EQ(shown(), Json::array({{{"event", "message"},
                                     {"text", "All done."},
                                     {"icon", "information"},
                                     {"buttons", "ok"},
                                     {"default", "ok"},
                                     {"title", "Orvanta"},
                                     {"answer", "ok"}}}));
}

TEST_F(Messages, BeforeAFileIsReplacedOfferNoFirst) {
    bench.answerMessage("no");
    EXPECT_FALSE(mayOverwrite(boxes, std::nullopt));
    EXPECT_EQ(shown(), Json::array({{{"event", "message"},
                                     {"text", "Do you want to overwrite the file?"},
                                     {"icon", "question"},
                                     {"buttons", "yesNo"},
                                     {"default", "no"},
                                     {"title", nullptr},
                                     {"answer", "no"}}}));
}

TEST_F(Messages, BeforeAFileIsReplacedMayBearATitleAndLetGoOnAtYes) {
    bench.answerMessage("yes");
    EXPECT_TRUE(mayOverwrite(boxes, "Merge"));
    EXPECT_EQ(shown()[0]["title"], "Merge");
}

}  // namespace
}  // namespace orvanta::test
