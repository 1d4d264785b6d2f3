#include <chrono>

#include "real_disk.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

/// What programs that were killed while they wrote have left in a folder.
class Leftovers : public RealDisk {
protected:
    static constexpr std::chrono::hours day{24};
    static constexpr std::chrono::minutes little{1};

    void leave(const std::string& name, std::chrono::minutes age = day + little) const {
        folder.write(name, "half a fi");
        fs::last_write_time(folder / name, fs::file_time_type::clock::now() - age);
    }
};

TEST_F(Leftovers, OlderThanADayGoWhenAFileIsWrittenBesideThem) {
    leave(".orvanta-aZ09xy");
    leave(".orvanta-Qw3rty", day - little);
    disk.replace(folder / "file", "new");
    EXPECT_EQ(folder.names(), (Names{".orvanta-Qw3rty", "file"}));
}

TEST_F(Leftovers, GoFromAFolderWhenAsked) {
    leave(".orvanta-aZ09xy");
    leave(".orvanta-Qw3rty", day - little);
    FileDisk::removeLeftovers(folder.path());
    EXPECT_EQ(folder.names(), Names{".orvanta-Qw3rty"});
    FileDisk::removeLeftovers(folder / "missing");
}

TEST_F(Leftovers, AreNoFilesOfOtherNames) {
    const Names names{".orvanta-",        ".orvanta-123.56", ".orvanta-12345",
                      ".orvanta-1234567", "orvanta-123456",  "x.orvanta-123456"};
    for (const std::string& name : names) leave(name);
    FileDisk::removeLeftovers(folder.path());
    EXPECT_EQ(folder.names(), names);
}

}  // namespace
}  // namespace orvanta::test
