#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "bench.h"
#include "temporary_folder.h"
#include "view/file_disk.h"

namespace orvanta::test {

inline const std::string start = R"({"do":"start"})";

/// One of the ways in which the program writes a file. In the lines "$" stands for the folder.
struct Writer {
    std::string name;
    std::string folder, file;  // where it writes
    Texts before;              // lines of the driver that lead up to the writing
    Texts write;               // and those that do it, over a file or where there is none
};
std::ostream& operator<<(std::ostream& out, const Writer& writer);

const std::vector<Writer>& writers();
/// The one with this name.
const Writer& writerOf(std::string_view name);

/// Lays out what the writers need in a folder: the program's folder "app", "documents", the files
/// to read in "sources", and "target". Everybody may write in all of them.
void layOut(const TemporaryFolder& folder);

/// The real disk, with a folder "rescue"; it notes what it wrote last.
class NotingDisk : public FileDisk {
public:
    explicit NotingDisk(const std::string& folder) : FileDisk(RescueStore(folder + "/rescue")) {}

    std::optional<std::string> written;  // none where the write failed, as it told

    void replace(const std::string& path, std::string_view bytes) override {
        written.reset();
        FileDisk::replace(path, bytes);
        written = bytes;
    }
    void replaceOwn(const std::string& path, std::string_view bytes) override {
        written.reset();
        FileDisk::replaceOwn(path, bytes);
        written = bytes;
    }
};

/// The whole program on the real disk, behind the toolkit-free view.
class PlayedProgram {
public:
    /// The folder has been laid out.
    explicit PlayedProgram(const std::string& folder);
    ~PlayedProgram();

    /// Plays the lines, in which "$" stands for the folder. Tells of a line that was refused and of
    /// a failure that nothing caught; empty if there was none.
    std::string play(const Texts& lines);

    Program& program() { return m_driver->program(); }

    NotingDisk disk;
    Texts messages;  // of all message boxes so far

private:
    std::string m_folder;
    std::unique_ptr<driver::Stage> m_stage;
    std::unique_ptr<driver::Driver> m_driver;
};

}  // namespace orvanta::test
