// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ReaderSandbox.h"

#include <QTemporaryDir>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utime.h>

namespace vellumry {
namespace {

/// True when `check` holds in a process that has entered the sandbox and sealed it.
template <typename Check>
bool holdsInside(Check check) {
    const pid_t child = fork();
    if (child == 0) {
        readersandbox::enter(readersandbox::Urgency::background);
        readersandbox::seal();
        _exit(check() ? 0 : 1);
    }
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST(ReaderSandbox, NoFileCanBeOpened) {
    EXPECT_TRUE(holdsInside([] { return open("/etc/passwd", O_RDONLY) < 0; }));
    EXPECT_TRUE(holdsInside([] { return open("/tmp/written-by-a-reader", O_WRONLY | O_CREAT, 0600) < 0; }));
}

TEST(ReaderSandbox, OneFolderStaysReadableAndNothingElse) {
    const pid_t child = fork();
    if (child == 0) {
        readersandbox::enter(readersandbox::Urgency::background);
        readersandbox::seal("/usr/share");
        const bool reads = open("/usr/share", O_RDONLY | O_DIRECTORY) >= 0;
        const bool refuses = open("/etc/passwd", O_RDONLY) < 0 && open("/usr/share/x", O_WRONLY | O_CREAT, 0600) < 0;
        _exit(reads && refuses ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

TEST(ReaderSandbox, NoFileCanBeChangedOrRemovedByItsName) {
    const QTemporaryDir folder;
    const std::string file = folder.filePath(QStringLiteral("file")).toStdString();
    const std::string other = file + "-other";
    const int written = open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_GE(written, 0);
    ASSERT_EQ(write(written, "kept", 4), 4);
    close(written);
    const char* const name = file.c_str();
    const char* const another = other.c_str();
    EXPECT_TRUE(holdsInside([name] { return truncate(name, 0) < 0; }));
    EXPECT_TRUE(holdsInside([name] { return chmod(name, 0666) < 0 && fchmodat(AT_FDCWD, name, 0666, 0) < 0; }));
    EXPECT_TRUE(holdsInside([name] { return chown(name, getuid(), getgid()) < 0; }));
    EXPECT_TRUE(holdsInside([name] { return utime(name, nullptr) < 0; }));
    EXPECT_TRUE(holdsInside([name] { return unlink(name) < 0; }));
    EXPECT_TRUE(holdsInside([name, another] { return rename(name, another) < 0 && link(name, another) < 0; }));
    EXPECT_TRUE(holdsInside([name, another] { return symlink(name, another) < 0 && mkdir(another, 0700) < 0; }));
    struct stat status {};
    ASSERT_EQ(stat(name, &status), 0);
    EXPECT_EQ(status.st_size, 4);
    EXPECT_EQ(status.st_mode & 07777, 0600u);
}

#if defined(__x86_64__)
TEST(ReaderSandbox, NoCallPassesUnderItsOtherNumber) {
    EXPECT_TRUE(holdsInside([] {
        errno = 0;
        return syscall(0x40000000L | SYS_getppid) < 0 && errno == EPERM;
    }));
}
#endif

TEST(ReaderSandbox, WhatWasOpenBeforeIsClosed) {
    const int before = open("/etc/passwd", O_RDONLY);
    ASSERT_GE(before, 0);
    EXPECT_TRUE(holdsInside([before] { return fcntl(before, F_GETFD) < 0; }));
    close(before);
}

#ifndef __SANITIZE_ADDRESS__ // which maps terabytes
TEST(ReaderSandbox, MemoryIsBounded) {
    EXPECT_TRUE(holdsInside([] {
        constexpr std::size_t tooMuch = std::size_t{3} << 30;
        constexpr int flags = MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE;
        return mmap(nullptr, tooMuch, PROT_READ | PROT_WRITE, flags, -1, 0) == MAP_FAILED;
    }));
}
#endif

TEST(ReaderSandbox, ThereIsNoNetwork) {
    EXPECT_TRUE(holdsInside([] { return socket(AF_INET, SOCK_STREAM, 0) < 0; }));
    EXPECT_TRUE(holdsInside([] { return socket(AF_UNIX, SOCK_STREAM, 0) < 0; }));
}

TEST(ReaderSandbox, NoProcessCanBeStartedOrSignalled) {
    EXPECT_TRUE(holdsInside([] { return fork() < 0; }));
    EXPECT_TRUE(holdsInside([] { return kill(getppid(), 0) < 0; }));
    EXPECT_TRUE(holdsInside([] {
        char name[] = "/bin/true";
        char* arguments[] = {name, nullptr};
        return execv(name, arguments) < 0;
    }));
}

TEST(ReaderSandbox, OtherProcessesAreOutOfReachByTheirThreadsAndLimitsToo) {
    EXPECT_TRUE(holdsInside([] { return syscall(SYS_tgkill, getppid(), getppid(), 0) < 0; }));
    EXPECT_TRUE(holdsInside([] { return syscall(SYS_tkill, getppid(), 0) < 0; }));
    EXPECT_TRUE(holdsInside([] { return setpriority(PRIO_PROCESS, static_cast<id_t>(getppid()), 19) < 0; }));
    EXPECT_TRUE(holdsInside([] {
        rlimit limits{};
        return prlimit(getppid(), RLIMIT_CPU, nullptr, &limits) < 0 && prlimit(0, RLIMIT_CPU, nullptr, &limits) == 0;
    }));
    EXPECT_TRUE(holdsInside([] { return raise(0) == 0; })) << "its own threads are not";
}

TEST(ReaderSandbox, ThreadsStayAllowed) {
    EXPECT_TRUE(holdsInside([] {
        bool hasRun = false;
        std::thread([&hasRun] { hasRun = true; }).join();
        return hasRun;
    }));
}

TEST(ReaderSandbox, ItIsTheLastInLineAndLeavesNoCore) {
    EXPECT_TRUE(holdsInside([] {
        rlimit core{1, 1};
        getrlimit(RLIMIT_CORE, &core);
        return getpriority(PRIO_PROCESS, 0) == 19 && core.rlim_max == 0;
    }));
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // which look at their own process
TEST(ReaderSandbox, OtherProcessesOfTheUserCannotLookInside) {
    EXPECT_TRUE(holdsInside([] { return prctl(PR_GET_DUMPABLE, 0, 0, 0, 0) == 0; }));
}
#endif

TEST(ReaderSandbox, WhereSomebodyWaitsItKeepsItsPlace) {
    const int before = getpriority(PRIO_PROCESS, 0);
    const pid_t child = fork();
    if (child == 0) {
        readersandbox::enter(readersandbox::Urgency::awaited);
        _exit(getpriority(PRIO_PROCESS, 0) == before ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

TEST(ReaderSandbox, ADecoderThatNeverEndsIsEnded) {
    const pid_t child = fork();
    if (child == 0) {
        readersandbox::enter(readersandbox::Urgency::background);
        readersandbox::allowProcessorSeconds(0);
        for (;;)
            (void)getppid();
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXCPU);
}

} // namespace
} // namespace vellumry
