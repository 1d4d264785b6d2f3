#include "desktop/instance_lock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <string>

#include "temporary_folder.h"

namespace orvanta::desktop::test {

namespace {

using Holder = InstanceLock::Holder;
using orvanta::test::TemporaryFolder;

/// Runs the steps in another process and gives what they return.
template <class Steps>
int inAnotherProcess(Steps steps) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(steps());
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

Holder takenByAnother(const TemporaryFolder& folder) {
    return static_cast<Holder>(inAnotherProcess([&] {
        InstanceLock other;
        return static_cast<int>(other.take(folder.path()));
    }));
}

}  // namespace

TEST(InstanceLock, IsOneProgramsAtATime) {
    const TemporaryFolder folder;
    InstanceLock lock;
    EXPECT_EQ(lock.take(folder.path()), Holder::ThisProgram);
    EXPECT_EQ(takenByAnother(folder), Holder::OwnProgram);
}

TEST(InstanceLock, IsFreeOnceItsProgramHasEnded) {
    const TemporaryFolder folder;
    EXPECT_EQ(takenByAnother(folder), Holder::ThisProgram);
    EXPECT_EQ(takenByAnother(folder), Holder::ThisProgram);
    InstanceLock lock;
    EXPECT_EQ(lock.take(folder.path()), Holder::ThisProgram);
}

TEST(InstanceLock, StaysWhenTheProgramReadsAllFilesOfTheFolder) {
    const TemporaryFolder folder;
    InstanceLock lock;
    lock.take(folder.path());
    { std::ifstream file(folder.path() + "/orvanta.lock"); }
    EXPECT_EQ(takenByAnother(folder), Holder::OwnProgram);
}

TEST(InstanceLock, OfAProgramThatCannotBeSeenIsNotRaised) {
    const TemporaryFolder folder;
    InstanceLock lock;
    lock.take(folder.path());
    for (const std::string process : {"1", "999999999", "-1", "", "no number"}) {
        folder.write("orvanta.lock", process);
        EXPECT_EQ(takenByAnother(folder), Holder::OtherProgram) << process;
    }
}

TEST(InstanceLock, GoesOverToAnotherFolder) {
    const TemporaryFolder first, second;
    InstanceLock lock;
    lock.take(first.path());
    EXPECT_EQ(lock.take(second.path()), Holder::ThisProgram);
    EXPECT_EQ(takenByAnother(first), Holder::ThisProgram);
    EXPECT_EQ(takenByAnother(second), Holder::OwnProgram);
}

}  // namespace orvanta::desktop::test
