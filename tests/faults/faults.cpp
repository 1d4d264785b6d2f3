#include "faults.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <type_traits>

namespace {

bool counting = false;
int counted = 0, chosenCall = 0, chosenFault = 0;
std::array<const char*, 4096> names;

bool isChosen(const char* name) {
    if (!counting) return false;
    names[static_cast<size_t>(counted) % names.size()] = name;
    return ++counted == chosenCall;
}

void killSelf() { ::kill(::getpid(), SIGKILL); }

template <class Result>
Result failed() {
    errno = chosenFault;
    if constexpr (std::is_pointer_v<Result>)
        return nullptr;
    else
        return -1;
}

/// Any call but those that follow.
template <class Call>
auto faulty(const char* name, Call call) -> decltype(call()) {
    if (!isChosen(name)) return call();
    if (chosenFault == OrvantaKill || chosenFault == OrvantaKillInWrite) killSelf();
    return chosenFault > 0 ? failed<decltype(call())>() : call();
}

/// A signal in between loses nothing. A file that is open for reading keeps all.
void loseEnd(int file) {
    struct stat status {};
    if (chosenFault <= 0 || chosenFault == EINTR || ::syscall(SYS_fstat, file, &status) != 0)
        return;
    ::syscall(SYS_ftruncate, file, status.st_size / 2);
}

/// A flush, or a close, which closes also if it fails.
template <class Call>
int faultyEnd(const char* name, int file, Call call) {
    if (!isChosen(name)) return call();
    if (chosenFault == OrvantaKill || chosenFault == OrvantaKillInWrite) killSelf();
    loseEnd(file);
    const int result = call();
    return chosenFault > 0 ? failed<int>() : result;
}

template <class Call>
ssize_t faultyWrite(const char* name, size_t size, Call call) {
    if (!isChosen(name)) return call(size);
    if (chosenFault == OrvantaKill) killSelf();
    if (chosenFault > 0) return failed<ssize_t>();
    const ssize_t written = call(size > 1 ? size / 2 : size);
    if (chosenFault == OrvantaKillInWrite) killSelf();
    return written;
}

}  // namespace

// The function behind this one.
#define ORVANTA_NEXT(name) \
    static const auto next = reinterpret_cast<decltype(&(name))>(::dlsym(RTLD_NEXT, #name))

#define ORVANTA_CALL(result, name, parameters, arguments)     \
    result name parameters {                                  \
        ORVANTA_NEXT(name);                                   \
        return faulty(#name, [&] { return next arguments; }); \
    }

// The headers declare some of these with a promise to throw nothing, some without.
extern "C" {

void orvanta_faults_begin(int call, int fault) {
    counting = true;
    counted = 0;
    chosenCall = call;
    chosenFault = fault;
}

int orvanta_faults_end(void) {
    counting = false;
    return counted;
}

int open(const char* name, int flags, ...) {
    ORVANTA_NEXT(open);
    va_list more;
    va_start(more, flags);
    const auto mode = va_arg(more, mode_t);
    va_end(more);
    return faulty("open", [&] { return next(name, flags, mode); });
}

int openat(int folder, const char* name, int flags, ...) {
    ORVANTA_NEXT(openat);
    va_list more;
    va_start(more, flags);
    const auto mode = va_arg(more, mode_t);
    va_end(more);
    return faulty("openat", [&] { return next(folder, name, flags, mode); });
}

ssize_t write(int file, const void* bytes, size_t size) {
    ORVANTA_NEXT(write);
    return faultyWrite("write", size, [&](size_t part) { return next(file, bytes, part); });
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t at) {
    ORVANTA_NEXT(pwrite);
    return faultyWrite("pwrite", size, [&](size_t part) { return next(file, bytes, part, at); });
}

int close(int file) {
    ORVANTA_NEXT(close);
    return faultyEnd("close", file, [&] { return next(file); });
}

int fsync(int file) {
    return faultyEnd("fsync", file, [] { return 0; });
}

const char* orvanta_faults_name(int call) {
    return names[static_cast<size_t>(call - 1) % names.size()];
}

ORVANTA_CALL(ssize_t, read, (int file, void* bytes, size_t size), (file, bytes, size))
ORVANTA_CALL(ssize_t, pread, (int file, void* bytes, size_t size, off_t at),
             (file, bytes, size, at))
ORVANTA_CALL(ssize_t, writev, (int file, const iovec* parts, int count), (file, parts, count))
ORVANTA_CALL(int, ftruncate, (int file, off_t size) noexcept, (file, size))
ORVANTA_CALL(int, stat, (const char* name, struct stat* status) noexcept, (name, status))
ORVANTA_CALL(int, lstat, (const char* name, struct stat* status) noexcept, (name, status))
ORVANTA_CALL(int, fstat, (int file, struct stat* status) noexcept, (file, status))
ORVANTA_CALL(int, access, (const char* name, int mode) noexcept, (name, mode))
ORVANTA_CALL(int, fchmod, (int file, mode_t mode) noexcept, (file, mode))
ORVANTA_CALL(int, fchown, (int file, uid_t user, gid_t group) noexcept, (file, user, group))
ORVANTA_CALL(int, mkdir, (const char* name, mode_t mode) noexcept, (name, mode))
ORVANTA_CALL(int, mkostemp, (char* name, int flags), (name, flags))
ORVANTA_CALL(int, rename, (const char* from, const char* to) noexcept, (from, to))
ORVANTA_CALL(int, link, (const char* from, const char* to) noexcept, (from, to))
ORVANTA_CALL(int, unlink, (const char* name) noexcept, (name))
ORVANTA_CALL(ssize_t, readlink, (const char* name, char* to, size_t size) noexcept,
             (name, to, size))
ORVANTA_CALL(DIR*, opendir, (const char* name), (name))
ORVANTA_CALL(dirent*, readdir, (DIR * folder), (folder))
ORVANTA_CALL(ssize_t, llistxattr, (const char* name, char* list, size_t size) noexcept,
             (name, list, size))
ORVANTA_CALL(ssize_t, lgetxattr,
             (const char* name, const char* attribute, void* value, size_t size) noexcept,
             (name, attribute, value, size))
ORVANTA_CALL(int, lsetxattr,
             (const char* name, const char* attribute, const void* value, size_t size,
              int flags) noexcept,
             (name, attribute, value, size, flags))
ORVANTA_CALL(int, lremovexattr, (const char* name, const char* attribute) noexcept,
             (name, attribute))

}  // extern "C"
