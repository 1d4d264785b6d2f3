#include "posix_disk.h"
#include "view/rescue_store.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

TEST_F(PosixDisk, LetsNobodyElseReadARescuedCopy) {
    const mode_t former = ::umask(0);
    const std::string name =
        fs::path(RescueStore(folder / "rescue").keep("team.bsm", "bytes")).filename().string();
    ::umask(former);
    EXPECT_EQ(modeOf("rescue/" + name), 0600u);
    EXPECT_EQ(modeOf("rescue"), 0700u);
}

}  // namespace
}  // namespace orvanta::test
