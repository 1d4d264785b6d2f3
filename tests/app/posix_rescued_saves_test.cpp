#include "app/rescued_saves.h"
#include "posix_disk.h"

namespace orvanta::test {
namespace {

TEST_F(PosixDisk, LetsNobodyElseReadTheCopyOfAFailedSave) {
    RescuedSaves saves{RescueStore(folder / "rescue")};
    saves.sessionNotWritten("/media/stick/team.bsm", "a session");
    for (const auto& copy : std::filesystem::directory_iterator(folder / "rescue"))
        EXPECT_EQ(modeOf("rescue/" + copy.path().filename().string()), 0600u);
}

}  // namespace
}  // namespace orvanta::test
