#include "real_disk.h"
#include "view/rescue_store.h"

namespace orvanta::test {
namespace {

TEST_F(RealDisk, RescuesASessionWhoseNameTheSystemDoesNotTake) {
    const RescueStore store(folder / "rescue");
    const std::string path = store.keep(folder / "plan: \"A\"?.bsm", "a session");
    EXPECT_TRUE(path.ends_with("plan_ _A__.bsm")) << path;
    EXPECT_EQ(disk.read(path), "a session");
}

}  // namespace
}  // namespace orvanta::test
