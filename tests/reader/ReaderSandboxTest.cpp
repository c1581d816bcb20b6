// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ReaderSandbox.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

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
