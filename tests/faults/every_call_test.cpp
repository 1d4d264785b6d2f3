#include <fcntl.h>

#include <array>
#include <cstdio>
#include <ctime>
#include <iterator>
#include <optional>
#include <sstream>

#include "faults.h"
#include "in_child.h"
#include "played_program.h"
#include "real_disk.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

/// Where a file is written, and over what.
struct Place {
    std::string name;
    mode_t mode;                        // of the folder
    std::optional<std::string> former;  // bytes of the file; none if there is no file
};
std::ostream& operator<<(std::ostream& out, const Place& place) { return out << place.name; }

const std::vector<Place> places{
    {"OverAFile", 0777, "former"},
    {"WhereThereIsNoFile", 0777, std::nullopt},
    {"InAStickyFolder", 01777, "former, and much longer " + std::string(20'000, 'f')},
    {"InALockedFolder", 0555, "former"},
};

constexpr std::array faults{ENOSPC,          EIO,
                            EINTR,           EDQUOT,
                            EPERM,           OrvantaShortWrite + 0,
                            OrvantaKill + 0, OrvantaKillInWrite + 0};

struct Counts {
    int calls = 0, faults = 0, kills = 0;
};
Counts counts;  // of all tests

bool isKill(int fault) { return fault == OrvantaKill || fault == OrvantaKillInWrite; }

bool isFor(int fault, const std::string& call) {
    const bool halves = fault == OrvantaShortWrite || fault == OrvantaKillInWrite;
    return !halves || call == "write" || call == "pwrite";
}

/// Whether a call that meets the fault has only to be made again.
bool isPassing(int fault, std::string_view call) {
    constexpr std::array<std::string_view, 12> repeated{"open",  "mkostemp",  "stat",  "lstat",
                                                        "fstat", "write",     "pread", "pwrite",
                                                        "fsync", "ftruncate", "close", "fchmod"};
    return fault == OrvantaShortWrite ||
           (fault == EINTR && std::ranges::find(repeated, call) != repeated.end());
}

/// The trials of one writer in one place. They belong to an ordinary user's process, which ends
/// with them.
class Trials {
public:
    Trials(const TemporaryFolder& folder, const Writer& writer, const Place& place)
        : m_folder(folder),
          m_writer(writer),
          m_place(place),
          m_target(writer.folder + "/" + writer.file),
          m_program(folder.path()) {}

    /// What went wrong, or else the three counts.
    std::string run() {
        if (std::string wrong = m_program.play(m_writer.before); !wrong.empty()) return wrong;
        writeFormer();
        const Texts calls = callsOfAWrite();
        m_fresh = content();
        if (calls.empty() || !m_fresh || m_fresh == m_place.former) return "nothing was written";
        for (std::size_t i = 0; i < calls.size(); ++i)
            for (const int fault : faults) {
                if (!isFor(fault, calls[i])) continue;
                if (std::string wrong = trial(static_cast<int>(i) + 1, fault); !wrong.empty())
                    return "call " + std::to_string(i + 1) + " (" + calls[i] + ") with fault " +
                           std::to_string(fault) + ": " + wrong;
            }
        return std::to_string(calls.size()) + ' ' + std::to_string(m_faults) + ' ' +
               std::to_string(m_kills);
    }

private:
    /// The names of the calls of a write to which nothing happens.
    Texts callsOfAWrite() {
        const Ended ended = inChild([&] {
            orvanta_faults_begin(0, 0);
            m_program.play(m_writer.write);
            std::string names;
            const int calls = orvanta_faults_end();
            for (int call = 1; call <= calls; ++call)
                names.append(orvanta_faults_name(call)).append("\n");
            return names;
        });
        std::istringstream names(ended.told);
        return {std::istream_iterator<std::string>(names), {}};
    }

    std::string trial(int call, int fault) {
        writeFormer();
        fs::remove_all(m_folder / "rescue");
        const Ended ended = inChild([&] { return writeWith(call, fault); });
        if (!isKill(fault)) {
            ++m_faults;
            return ended.isWell() ? ended.told : "the program ended";
        }
        ++m_kills;
        if (!ended.isKilled()) return "the program was not killed";
        if (content() != m_place.former && content() != m_fresh && !isRescued())
            return "the former file is lost";
        const Ended after = inChild([&] { return startAnew(); });
        return after.isWell() ? after.told : "the next program ended";
    }

    std::string writeWith(int call, int fault) {
        m_program.disk.written.reset();
        orvanta_faults_begin(call, fault);
        std::string wrong = m_program.play(m_writer.write);
        orvanta_faults_end();
        if (!wrong.empty()) return wrong;
        // A fault in the reading of another file leads to other bytes than usual.
        const auto& written = m_program.disk.written;
        if (content() != (written ? written : m_place.former))
            return written ? "the file is not the new one" : "the file is not the former one";
        if (!written && isPassing(fault, orvanta_faults_name(call)))
            return "the write was not tried again";
        return m_program.play({R"({"do":"state"})"}) + writeAgain(m_program.disk);
    }

    std::string startAnew() {
        PlayedProgram next(m_folder.path());
        return next.play({R"({"do":"start"})"}) + writeAgain(next.disk);
    }

    std::string writeAgain(FileDisk& disk) {
        for (const std::string& leftover : leftovers()) age(leftover);
        writeFormer();
        if (const int error = failureOf([&] { disk.replace(m_folder / m_target, "next"); }))
            return "the next write failed with error " + std::to_string(error);
        if (content() != "next") return "the next write wrote something else";
        return leftovers().empty() ? "" : leftovers().front() + " is left";
    }

    std::optional<std::string> content() const {
        if (!fs::exists(m_folder / m_target)) return std::nullopt;
        return m_folder.read(m_target);
    }
    bool isRescued() const {
        for (const std::string& name : namesIn("rescue"))
            if (m_folder.read("rescue/" + name) == m_place.former) return true;
        return false;
    }

    Texts namesIn(const std::string& place) const {
        Texts names;
        std::error_code missing;
        for (const auto& entry : fs::directory_iterator(m_folder / place, missing))
            names.push_back(entry.path().filename().string());
        return names;
    }
    Texts leftovers() const {
        Texts found;
        for (const std::string& place : {m_writer.folder, std::string("rescue")})
            for (const std::string& name : namesIn(place))
                if (name.starts_with(".orvanta-")) found.emplace_back(place).append("/" + name);
        return found;
    }
    void age(const std::string& name) const {
        const timespec time{::time(nullptr) - 90'000, 0};
        const timespec times[]{time, time};
        ::utimensat(AT_FDCWD, (m_folder / name).c_str(), times, 0);
    }

    // A sticky folder may refuse to have another's file opened in a way that could make one.
    void writeFormer() const {
        const std::string path = m_folder / m_target;
        if (!m_place.former) {
            fs::remove(path);
            return;
        }
        const int file = ::open(path.c_str(), O_WRONLY | O_TRUNC | (content() ? 0 : O_CREAT), 0666);
        (void)!::write(file, m_place.former->data(), m_place.former->size());
        ::close(file);
    }

    const TemporaryFolder& m_folder;
    const Writer& m_writer;
    const Place& m_place;
    const std::string m_target;
    PlayedProgram m_program;
    std::optional<std::string> m_fresh;
    int m_faults = 0, m_kills = 0;
};

class AFaultAtEveryCall : public testing::TestWithParam<std::tuple<Writer, Place>> {
protected:
    AFaultAtEveryCall() {
        layOut(folder);
        if (place.former) {
            folder.write(writer.folder + "/" + writer.file, *place.former);
            ::chmod((folder / (writer.folder + "/" + writer.file)).c_str(), 0666);
        }
        ::chmod((folder / writer.folder).c_str(), place.mode);
    }
    ~AFaultAtEveryCall() override { ::chmod((folder / writer.folder).c_str(), 0777); }

    static void TearDownTestSuite() {
        std::printf("faults: %d calls of %zu writers in %zu places met %d errors and %d kills\n",
                    counts.calls, writers().size(), places.size(), counts.faults, counts.kills);
    }

    const Writer writer = std::get<0>(GetParam());
    const Place place = std::get<1>(GetParam());
    TemporaryFolder folder{memoryFolder()};
};

TEST_P(AFaultAtEveryCall, LeavesTheFormerFileOrTheNewOneByteForByteAndTheProgramGoesOn) {
    const Ended ended = inChild([&]() -> std::string {
        if (!becomeOrdinaryUser()) return "the test can't become an ordinary user";
        return Trials(folder, writer, place).run();
    });
    Counts found;
    std::istringstream told(ended.told);
    ASSERT_TRUE(told >> found.calls >> found.faults >> found.kills) << ended.told;
    counts.calls += found.calls;
    counts.faults += found.faults;
    counts.kills += found.kills;
}

INSTANTIATE_TEST_SUITE_P(Of, AFaultAtEveryCall,
                         testing::Combine(testing::ValuesIn(writers()), testing::ValuesIn(places)),
                         [](const auto& made) {
                             return std::get<0>(made.param).name + std::get<1>(made.param).name;
                         });

}  // namespace
}  // namespace orvanta::test
