#include "reports/windows_word_processor.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <thread>

#include "recorder.h"
#include "report_bench.h"
#include "reports/document_writer.h"
#include "reports/word_report.h"
#include "temporary_folder.h"
#include "view/path_text.h"
#include "view/windows_names.h"
#include "windows_automation/served_class.h"

namespace orvanta::test {
namespace {

std::wstring keyOf(const std::wstring& name) { return L"Software\\Classes\\" + name; }

/// A new key of classes, gone with all that it holds at the end.
class ClassKey {
public:
    ClassKey(HKEY root, const std::wstring& name) : m_root(root), m_name(keyOf(name)) {
        DWORD found = 0;
        HKEY key = nullptr;
        RegCreateKeyExW(root, m_name.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, &found);
        RegCloseKey(key);
        m_isNew = found == REG_CREATED_NEW_KEY;
        EXPECT_TRUE(m_isNew) << "a word processor is registered";
    }
    ~ClassKey() {
        if (m_isNew) RegDeleteTreeW(m_root, m_name.c_str());
    }
    ClassKey(const ClassKey&) = delete;
    ClassKey& operator=(const ClassKey&) = delete;

    void set(const wchar_t* inner, const std::wstring& value) const {
        if (!m_isNew) return;
        const DWORD size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
        EXPECT_EQ(RegSetKeyValueW(m_root, (m_name + L"\\" + inner).c_str(), nullptr, REG_SZ,
                                  value.c_str(), size),
                  ERROR_SUCCESS);
    }

private:
    HKEY m_root;
    std::wstring m_name;
    bool m_isNew = false;
};

std::wstring nameOf(const GUID& id) {
    std::wstring name(39, L'\0');
    name.resize(static_cast<std::size_t>(StringFromGUID2(id, name.data(), 39)) - 1);
    return name;
}

const std::wstring wordProgram = L"Word.Application", wordClass = L"CLSID\\" + nameOf(servedClass);

class Registration {
public:
    Registration(HKEY root, const std::wstring& command)
        : m_program(withoutLeftovers(root), wordProgram), m_class(root, wordClass) {
        m_program.set(L"CLSID", nameOf(servedClass));
        m_class.set(L"LocalServer32", command);
    }

private:
    /// Of a test that was killed.
    static HKEY withoutLeftovers(HKEY root) {
        if (RegDeleteTreeW(root, keyOf(wordClass).c_str()) == ERROR_SUCCESS)
            RegDeleteTreeW(root, keyOf(wordProgram).c_str());
        return root;
    }

    ClassKey m_program, m_class;
};

/// The word processor of this system, while it lives: what this command starts.
class Installed {
public:
    explicit Installed(const std::wstring& command) : m_forUser(HKEY_CURRENT_USER, command) {
        // Wine 8 does not look at a user's own classes.
        if (!isKnown()) m_forAll.emplace(HKEY_LOCAL_MACHINE, command);
        EXPECT_TRUE(isKnown());
    }

private:
    static bool isKnown() {
        CLSID found;
        return SUCCEEDED(CLSIDFromProgID(wordProgram.c_str(), &found)) && found == servedClass;
    }

    Registration m_forUser;
    std::optional<Registration> m_forAll;
};

std::wstring quoted(const std::wstring& word) { return L'"' + word + L'"'; }

/// In the folder of this program.
std::wstring serverProgram() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path.substr(0, path.rfind(L'\\') + 1) + L"orvanta_automation_server.exe";
}

/// The words of a file that a process keeps to itself, a line each, once that has ended; nothing if
/// it does not end.
std::optional<Texts> linesLeftBehind(const std::wstring& file) {
    using namespace std::chrono_literals;
    for (int waits = 0; waits < 600; ++waits, std::this_thread::sleep_for(50ms)) {
        std::ifstream text(std::filesystem::path(file), std::ios::binary);
        if (!text) continue;
        Texts lines;
        for (std::string line; std::getline(text, line);) lines.push_back(line);
        return lines;
    }
    return std::nullopt;
}

/// What the program does to a word processor in order, or to one of whose uses one fails.
struct Expectation {
    explicit Expectation(const Analysis& analysis, int failingUse = 0) {
        ReportBench bench(analysis);
        Recorder recorder;
        recorder.failUse(failingUse);
        bench.makeDocument(recorder);
        operations = recorder.operations();
        uses = recorder.uses();
    }

    Texts operations;
    int uses = 0;
};

/// A program on a system with a word processor that keeps what is done to it.
class InstalledWordProcessor : public testing::Test {
protected:
    /// What was done to it until it ended. `mishap`: what happens to it, as its program is told.
    std::optional<Texts> operationsOf(ReportBench& bench, const std::wstring& mishap = L"",
                                      const std::string& target = "docs/team.rtf") {
        const std::wstring file = native::wideFrom(folder / "operations");
        DeleteFileW(file.c_str());
        const Installed installed(quoted(serverProgram()) + L' ' + quoted(file) + L' ' + mishap);
        makeDocument(bench, target);
        return linesLeftBehind(file);
    }

    static void makeDocument(ReportBench& bench, const std::string& target = "docs/team.rtf") {
        DocumentWriter own(bench.disk);
        WindowsWordProcessors wordProcessors(own);
        bench.use(wordProcessors);
        generateWordReport(bench.reporter(), "docs/team.aze", target);
    }

    static bool wroteItself(const ReportBench& bench) {
        return bench.disk.files.contains("docs/team.rtf");
    }

    TemporaryFolder folder;
};

TEST_F(InstalledWordProcessor, IsAskedForTheDocumentOperationByOperation) {
    ReportBench bench;
    EXPECT_EQ(operationsOf(bench), Expectation(smallAnalysis()).operations);
    EXPECT_FALSE(wroteItself(bench));
    EXPECT_EQ(bench.happened(), Json::array());
}

TEST_F(InstalledWordProcessor, QuitsWhicheverUseOfAMemberFails) {
    const int uses = Expectation({}).uses;
    constexpr int step = 97;
    for (int use = 2; use < uses; use += step) {
        ReportBench bench(Analysis{});
        const auto done = operationsOf(bench, L"fail " + std::to_wstring(use));
        ASSERT_EQ(done, Expectation({}, use).operations) << use;
        ASSERT_EQ(done->back(), "Application.Quit()") << use;
        ASSERT_EQ(bench.happened(), Json::array()) << use;
    }
}

TEST_F(InstalledWordProcessor, EndsAlsoWhereItFailsToQuit) {
    const int quit = Expectation({}).uses;
    ReportBench bench(Analysis{});
    const auto done = operationsOf(bench, L"fail " + std::to_wstring(quit));
    EXPECT_EQ(done, Expectation({}, quit).operations);
    EXPECT_EQ(done->back(), "Document.Close()");
}

TEST_F(InstalledWordProcessor, ThatLacksAMemberIsSparedThatMemberAlone) {
    Texts expected = Expectation({}).operations;
    ASSERT_EQ(std::erase_if(expected,
                            [](const std::string& operation) {
                                return operation.find(".HeadingFormat") != operation.npos;
                            }),
              4u);
    ReportBench bench(Analysis{});
    EXPECT_EQ(operationsOf(bench, L"lack HeadingFormat"), expected);
}

TEST_F(InstalledWordProcessor, ThatIsBusyIsAskedAgain) {
    ReportBench bench(Analysis{});
    EXPECT_EQ(operationsOf(bench, L"busy 10"), Expectation({}).operations);
}

TEST_F(InstalledWordProcessor, ThatBreaksDownKeepsTheProgramFromNothing) {
    ReportBench bench(Analysis{});
    EXPECT_EQ(operationsOf(bench, L"end 90"), Texts{});
    EXPECT_FALSE(wroteItself(bench));
    EXPECT_EQ(bench.happened(), Json::array());
    EXPECT_EQ(bench.waitCursor, (std::vector{true, false}));
}

TEST_F(InstalledWordProcessor, GetsTextsAndNamesOfAnyScript) {
    ReportBench bench({.strengths = {{"S1", "Caf\xe9 \x96 5 \x80"}}});
    const std::string target = pathFromNative("C:\\\u03b1\u03b2 \u6f22 caf\u00e9.rtf");
    const auto done = operationsOf(bench, L"", target);
    ASSERT_TRUE(done);
    EXPECT_EQ(std::ranges::count(*done, "Document.SaveAs(\"" + target + "\")"), 1);
    EXPECT_EQ(std::ranges::count_if(*done,
                                    [](const std::string& operation) {
                                        return operation.ends_with(
                                            ".Range.Text = \"Caf\xe9 \x96 5 \x80\"");
                                    }),
              1);
}

class ProgramsOwnWriter : public InstalledWordProcessor {
protected:
    static std::string writtenBy(ReportBench& bench) { return bench.disk.files["docs/team.rtf"]; }

    ReportBench bench;
    const std::string document = ReportBench().document();
};

TEST_F(ProgramsOwnWriter, TakesOverWhereNoWordProcessorIsInstalled) {
    makeDocument(bench);
    EXPECT_EQ(writtenBy(bench), document);
}

TEST_F(ProgramsOwnWriter, TakesOverWhereTheWordProcessorIsNoLongerThere) {
    const Installed installed(quoted(native::wideFrom(folder / "gone.exe")));
    makeDocument(bench);
    EXPECT_EQ(writtenBy(bench), document);
}

TEST_F(ProgramsOwnWriter, TakesOverWhereTheWordProcessorMakesNoInstance) {
    EXPECT_EQ(operationsOf(bench, L"fail 1"), Texts{});
    EXPECT_EQ(writtenBy(bench), document);
}

}  // namespace
}  // namespace orvanta::test
