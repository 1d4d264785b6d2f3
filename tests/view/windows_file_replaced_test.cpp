#include <windows.h>

#include <functional>
#include <utility>

#include "real_disk.h"
#include "view/windows_names.h"

namespace orvanta::test {
namespace {

/// What stands before a call of the system: its result for these two names, a last error with it.
using Stand = std::function<WINBOOL(LPCWSTR name, LPCWSTR other)>;
Stand beforeReplacing, beforeMoving;

template <class Call>
Call systemCall(const char* name) {
    return reinterpret_cast<Call>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32"), name)));
}

WINBOOL WINAPI replaceFile(LPCWSTR former, LPCWSTR by, LPCWSTR kept, DWORD flags, LPVOID first,
                           LPVOID second) {
    static const auto call = systemCall<decltype(&ReplaceFileW)>("ReplaceFileW");
    return beforeReplacing ? beforeReplacing(former, by)
                           : call(former, by, kept, flags, first, second);
}

WINBOOL WINAPI moveFile(LPCWSTR from, LPCWSTR to, DWORD flags) {
    static const auto call = systemCall<decltype(&MoveFileExW)>("MoveFileExW");
    return beforeMoving ? beforeMoving(from, to) : call(from, to, flags);
}

}  // namespace
}  // namespace orvanta::test

extern "C" {
decltype(&ReplaceFileW) __imp_ReplaceFileW = orvanta::test::replaceFile;
decltype(&MoveFileExW) __imp_MoveFileExW = orvanta::test::moveFile;
}

namespace orvanta::test {
namespace {

constexpr DWORD unableToMoveReplacement = 1176, unableToMoveReplacement2 = 1177;

WINBOOL failed(DWORD error) {
    SetLastError(error);
    return FALSE;
}

/// The system gives up half-way through replacing a file.
class HalfReplacedFile : public RealDisk {
protected:
    HalfReplacedFile() { folder.write("file", "former"); }
    ~HalfReplacedFile() override { beforeReplacing = beforeMoving = nullptr; }

    /// The former file has gone.
    static WINBOOL goneWithoutSuccessor(LPCWSTR former, LPCWSTR) {
        DeleteFileW(former);
        return failed(unableToMoveReplacement);
    }
    /// The former file has another name.
    WINBOOL putAside(LPCWSTR former, LPCWSTR) const {
        MoveFileW(former, native::longName(folder / "aside").c_str());
        return failed(unableToMoveReplacement2);
    }
    Stand puttingAside() const {
        return [this](LPCWSTR former, LPCWSTR by) { return putAside(former, by); };
    }

    /// What the files of the folder hold.
    Names contents() const {
        Names contents;
        for (const std::string& name : folder.names()) contents.push_back(folder.read(name));
        return contents;
    }
};

TEST_F(HalfReplacedFile, IsMadeWhole) {
    beforeReplacing = goneWithoutSuccessor;
    EXPECT_EQ(errorOfReplacing(folder / "file"), noError);
    EXPECT_EQ(folder.names(), Names{"file"});
    EXPECT_EQ(folder.read("file"), "new");
}

TEST_F(HalfReplacedFile, WhoseFormerOneWasPutAsideIsMadeWhole) {
    beforeReplacing = puttingAside();
    EXPECT_EQ(errorOfReplacing(folder / "file"), noError);
    EXPECT_EQ(folder.names(), (Names{"aside", "file"}));
    EXPECT_EQ(folder.read("file"), "new");
}

TEST_F(HalfReplacedFile, LeavesTheNewBytesWhereTheFormerOnesHaveGone) {
    for (const DWORD error : {ERROR_ACCESS_DENIED, ERROR_DISK_FULL}) {
        folder.write("file", "former");
        beforeReplacing = goneWithoutSuccessor;
        beforeMoving = [error](LPCWSTR, LPCWSTR) { return failed(error); };
        EXPECT_NE(errorOfReplacing(folder / "file"), noError);
    }
    EXPECT_EQ(contents(), (Names{"new", "new"}));
}

TEST_F(HalfReplacedFile, LeavesTheNewBytesWhereTheFormerOnesWerePutAside) {
    beforeReplacing = puttingAside();
    beforeMoving = [](LPCWSTR, LPCWSTR) { return failed(ERROR_DISK_FULL); };
    EXPECT_EQ(errorOfReplacing(folder / "file"), diskFull);
    EXPECT_EQ(contents(), (Names{"new", "former"}));
}

TEST_F(HalfReplacedFile, ThatStayedLeavesNothingElse) {
    beforeReplacing = [](LPCWSTR, LPCWSTR) { return failed(ERROR_NOT_SUPPORTED); };
    beforeMoving = [](LPCWSTR, LPCWSTR) { return failed(ERROR_DISK_FULL); };
    EXPECT_EQ(errorOfReplacing(folder / "file"), diskFull);
    EXPECT_EQ(folder.names(), Names{"file"});
    EXPECT_EQ(folder.read("file"), "former");
}

}  // namespace
}  // namespace orvanta::test
