#include <windows.h>

#include <functional>

#include "real_disk.h"
#include "view/windows_names.h"

namespace orvanta::test {
namespace {

/// Stands before a call of the system with two names: the error with which it fails, 0 for the
/// call itself.
using Stand = std::function<DWORD(LPCWSTR name, LPCWSTR other)>;
Stand beforeReplacing, beforeMoving;
/// Stands behind a call that another program keeps from opening a file.
std::function<void()> whenHeld;

template <class Call>
Call systemCall(const char* name) {
    return reinterpret_cast<Call>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32"), name)));
}

bool fails(const Stand& stand, LPCWSTR name, LPCWSTR other) {
    const DWORD error = stand ? stand(name, other) : 0;
    if (error) SetLastError(error);
    return error;
}

WINBOOL WINAPI replaceFile(LPCWSTR former, LPCWSTR by, LPCWSTR kept, DWORD flags, LPVOID first,
                           LPVOID second) {
    static const auto call = systemCall<decltype(&ReplaceFileW)>("ReplaceFileW");
    return !fails(beforeReplacing, former, by) && call(former, by, kept, flags, first, second);
}

WINBOOL WINAPI moveFile(LPCWSTR from, LPCWSTR to, DWORD flags) {
    static const auto call = systemCall<decltype(&MoveFileExW)>("MoveFileExW");
    return !fails(beforeMoving, from, to) && call(from, to, flags);
}

HANDLE WINAPI createFile(LPCWSTR name, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                         DWORD how, DWORD flags, HANDLE like) {
    static const auto call = systemCall<decltype(&CreateFileW)>("CreateFileW");
    const HANDLE file = call(name, access, share, security, how, flags, like);
    if (file == INVALID_HANDLE_VALUE && GetLastError() == ERROR_SHARING_VIOLATION && whenHeld) {
        whenHeld();
        SetLastError(ERROR_SHARING_VIOLATION);
    }
    return file;
}

}  // namespace
}  // namespace orvanta::test

extern "C" {
decltype(&ReplaceFileW) __imp_ReplaceFileW = orvanta::test::replaceFile;
decltype(&MoveFileExW) __imp_MoveFileExW = orvanta::test::moveFile;
decltype(&CreateFileW) __imp_CreateFileW = orvanta::test::createFile;
}

namespace orvanta::test {
namespace {

class ReplacedFile : public RealDisk {
protected:
    ReplacedFile() { folder.write("file", "former"); }
    ~ReplacedFile() override {
        beforeReplacing = beforeMoving = nullptr;
        whenHeld = nullptr;
    }
};

/// The system gives up half-way.
class HalfReplacedFile : public ReplacedFile {
protected:
    /// The former file has gone.
    static DWORD removeFormer(LPCWSTR former, LPCWSTR) {
        DeleteFileW(former);
        return ERROR_UNABLE_TO_MOVE_REPLACEMENT;
    }
    /// The former file has another name.
    Stand puttingAside() const {
        return [this](LPCWSTR former, LPCWSTR) -> DWORD {
            MoveFileW(former, native::longName(folder / "aside").c_str());
            return ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
        };
    }
    static Stand failing(DWORD error) {
        return [error](LPCWSTR, LPCWSTR) { return error; };
    }

    /// What the files of the folder hold.
    Names contents() const {
        Names contents;
        for (const std::string& name : folder.names()) contents.push_back(folder.read(name));
        return contents;
    }
};

TEST_F(HalfReplacedFile, IsMadeWhole) {
    beforeReplacing = removeFormer;
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
        beforeReplacing = removeFormer;
        beforeMoving = failing(error);
        EXPECT_NE(errorOfReplacing(folder / "file"), noError);
    }
    EXPECT_EQ(contents(), (Names{"new", "new"}));
}

TEST_F(HalfReplacedFile, LeavesTheNewBytesWhereTheFormerOnesWerePutAside) {
    beforeReplacing = puttingAside();
    beforeMoving = failing(ERROR_DISK_FULL);
    EXPECT_EQ(errorOfReplacing(folder / "file"), diskFull);
    EXPECT_EQ(contents(), (Names{"new", "former"}));
}

TEST_F(HalfReplacedFile, ThatStayedLeavesNothingElse) {
    beforeReplacing = failing(ERROR_NOT_SUPPORTED);
    beforeMoving = failing(ERROR_DISK_FULL);
    EXPECT_EQ(errorOfReplacing(folder / "file"), diskFull);
    EXPECT_EQ(folder.names(), Names{"file"});
    EXPECT_EQ(folder.read("file"), "former");
}

/// Another program has a file open and lets nobody else have it.
class HeldFile : public ReplacedFile {
protected:
    /// It lets go of the file when the second try to open it has failed.
    void hold() {
        m_holder = CreateFileW(native::longName(folder / "file").c_str(), GENERIC_READ, 0, nullptr,
                               OPEN_EXISTING, 0, nullptr);
        ASSERT_NE(m_holder, INVALID_HANDLE_VALUE);
        whenHeld = [this, tries = 0]() mutable {
            if (++tries == 2) CloseHandle(m_holder);
        };
    }
    /// It has the new file at the first two tries to bring that to its place.
    static Stand holdingTheNewOne() {
        return [tries = 0](LPCWSTR, LPCWSTR) mutable -> DWORD {
            return ++tries <= 2 ? ERROR_SHARING_VIOLATION : 0;
        };
    }

    void expectReplaced() {
        EXPECT_EQ(folder.names(), Names{"file"});
        EXPECT_EQ(folder.read("file"), "new");
        EXPECT_EQ(rescue.names(), Names{});
    }

    TemporaryFolder rescue;
    FileDisk rescuing{RescueStore(rescue.path())};

private:
    HANDLE m_holder = INVALID_HANDLE_VALUE;
};

TEST_F(HeldFile, IsReplacedOnceItIsLetGo) {
    hold();
    EXPECT_EQ(failureOf([&] { rescuing.replace(folder / "file", "new"); }), noError);
    expectReplaced();
}

TEST_F(HeldFile, OfTheProgramsOwnIsReplacedOnceItIsLetGo) {
    hold();
    EXPECT_EQ(failureOf([&] { rescuing.replaceOwn(folder / "file", "new"); }), noError);
    expectReplaced();
}

TEST_F(HeldFile, ThatIsNewReplacesAnotherOnceItIsLetGo) {
    beforeReplacing = holdingTheNewOne();
    EXPECT_EQ(failureOf([&] { rescuing.replace(folder / "file", "new"); }), noError);
    expectReplaced();
}

TEST_F(HeldFile, ThatIsNewTakesItsPlaceOnceItIsLetGo) {
    disk.remove(folder / "file");
    beforeMoving = holdingTheNewOne();
    EXPECT_EQ(failureOf([&] { rescuing.replace(folder / "file", "new"); }), noError);
    expectReplaced();
}

TEST_F(HeldFile, ThatIsNewAndNotLetGoTakesNoPlace) {
    disk.remove(folder / "file");
    beforeMoving = [](LPCWSTR, LPCWSTR) -> DWORD { return ERROR_SHARING_VIOLATION; };
    EXPECT_EQ(errorOfReplacing(folder / "file"), permissionDenied);
    EXPECT_EQ(folder.names(), Names{});
}

}  // namespace
}  // namespace orvanta::test
