// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ReaderSandbox.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <vector>

namespace vellumry::readersandbox {

namespace {

constexpr rlim_t memoryBytes = rlim_t{2} * 1024 * 1024 * 1024;
constexpr rlim_t descriptors = 32;
constexpr int lowestPriority = 19;

#if defined(__x86_64__)
constexpr std::uint32_t ownArchitecture = AUDIT_ARCH_X86_64;
/// The same calls have other numbers from here on (x32), which a list of calls would let pass.
constexpr std::uint32_t otherNumbersFrom = 0x40000000;
#elif defined(__aarch64__)
constexpr std::uint32_t ownArchitecture = AUDIT_ARCH_AARCH64;
constexpr std::uint32_t otherNumbersFrom = 0;
#else
constexpr std::uint32_t ownArchitecture = 0;
constexpr std::uint32_t otherNumbersFrom = 0;
#endif

void limit(__rlimit_resource resource, rlim_t most) {
    const rlimit both{most, most};
    setrlimit(resource, &both);
}

/// Lets files beneath `folder` be read, whatever else is given up.
void keepReadable(int ruleset, const std::string& folder) {
    const int place = open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (place < 0)
        return;
    landlock_path_beneath_attr rule{};
    rule.allowed_access = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
    rule.parent_fd = place;
    syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
    close(place);
}

/// Every file access that Landlock's first version knows, with no rule that allows any but the one.
void giveUpFiles(const std::string& readableFolder) {
    landlock_ruleset_attr attributes{};
    attributes.handled_access_fs = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1;
    const auto ruleset = static_cast<int>(syscall(SYS_landlock_create_ruleset, &attributes, sizeof(attributes), 0));
    if (ruleset < 0)
        return;
    if (!readableFolder.empty())
        keepReadable(ruleset, readableFolder);
    syscall(SYS_landlock_restrict_self, ruleset, 0);
    close(ruleset);
}

/// Landlock's first version leaves alone what changes a file by its path without opening it, and other processes are
/// beyond it.
constexpr std::array refusedCalls {
    SYS_socket, SYS_connect, SYS_bind, SYS_listen, SYS_accept4, SYS_execve, SYS_execveat, SYS_ptrace, SYS_kill,
        SYS_process_vm_readv, SYS_process_vm_writev, SYS_io_uring_setup, SYS_bpf, SYS_keyctl, SYS_unshare, SYS_setns,
        SYS_mount, SYS_open_by_handle_at, SYS_pidfd_getfd, SYS_pidfd_send_signal, SYS_userfaultfd, SYS_perf_event_open,
        SYS_truncate, SYS_fchmodat, SYS_fchownat, SYS_utimensat, SYS_setxattr, SYS_lsetxattr, SYS_removexattr,
        SYS_lremovexattr, SYS_shmget, SYS_shmat, SYS_tkill, SYS_rt_sigqueueinfo, SYS_rt_tgsigqueueinfo, SYS_setpriority,
#if defined(__x86_64__)
        SYS_fork, SYS_vfork, SYS_accept, SYS_chmod, SYS_chown, SYS_lchown, SYS_utime, SYS_utimes, SYS_futimesat,
#endif
};

sock_filter statement(unsigned code, std::uint32_t value) {
    return BPF_STMT(static_cast<std::uint16_t>(code), value);
}

sock_filter jump(std::uint32_t value, std::uint8_t ifEqual, std::uint8_t otherwise) {
    return BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, value, ifEqual, otherwise);
}

/// Allows `call` when its first argument, the number of a process, is `process`.
void allowOnlyFor(std::vector<sock_filter>& filter, long call, pid_t process) {
    constexpr unsigned load = BPF_LD | BPF_W | BPF_ABS;
    constexpr unsigned give = BPF_RET | BPF_K;
    filter.push_back(jump(static_cast<std::uint32_t>(call), 0, 4));
    filter.push_back(statement(load, offsetof(seccomp_data, args)));
    filter.push_back(jump(static_cast<std::uint32_t>(process), 0, 1));
    filter.push_back(statement(give, SECCOMP_RET_ALLOW));
    filter.push_back(statement(give, SECCOMP_RET_ERRNO | EPERM));
}

/// Refuses `refusedCalls` and new processes; threads stay allowed, Qt scales large pictures on several.
std::vector<sock_filter> callFilter() {
    constexpr unsigned load = BPF_LD | BPF_W | BPF_ABS;
    constexpr unsigned give = BPF_RET | BPF_K;
    std::vector<sock_filter> filter{
        statement(load, offsetof(seccomp_data, arch)),
        jump(ownArchitecture, 1, 0),
        statement(give, SECCOMP_RET_KILL_PROCESS),
        statement(load, offsetof(seccomp_data, nr)),
    };
    if constexpr (otherNumbersFrom != 0) {
        filter.push_back(BPF_JUMP(BPF_JMP | BPF_JGE | BPF_K, otherNumbersFrom, 0, 1));
        filter.push_back(statement(give, SECCOMP_RET_ERRNO | EPERM));
    }
    for (const long call : refusedCalls) {
        filter.push_back(jump(static_cast<std::uint32_t>(call), 0, 1));
        filter.push_back(statement(give, SECCOMP_RET_ERRNO | EPERM));
    }
    allowOnlyFor(filter, SYS_tgkill, getpid()); // abort()
    allowOnlyFor(filter, SYS_prlimit64, 0);
    // The C library goes back to clone(), whose flags can be looked at.
    filter.push_back(jump(SYS_clone3, 0, 1));
    filter.push_back(statement(give, SECCOMP_RET_ERRNO | ENOSYS));
    filter.push_back(jump(SYS_clone, 0, 3));
    filter.push_back(statement(load, offsetof(seccomp_data, args)));
    filter.push_back(BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, CLONE_THREAD, 1, 0));
    filter.push_back(statement(give, SECCOMP_RET_ERRNO | EPERM));
    filter.push_back(statement(give, SECCOMP_RET_ALLOW));
    return filter;
}

void giveUpCalls() {
    if (ownArchitecture == 0)
        return;
    std::vector<sock_filter> filter = callFilter();
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program);
}

} // namespace

void enter(Urgency urgency) {
    if (urgency == Urgency::background)
        (void)setpriority(PRIO_PROCESS, 0, lowestPriority);
    close_range(STDERR_FILENO + 1, ~0U, 0);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_NOFILE, descriptors);
#ifndef __SANITIZE_ADDRESS__ // which maps terabytes
    limit(RLIMIT_AS, memoryBytes);
#endif
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
}

void seal(const std::string& readableFolder) {
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // which look at their own process
    // Others' debuggers would get at the picture.
    prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
#endif
    giveUpFiles(readableFolder);
    giveUpCalls();
}

void allowProcessorSeconds(unsigned seconds) {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    rlimit both{};
    getrlimit(RLIMIT_CPU, &both);
    both.rlim_cur = static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) + 1 + seconds;
    setrlimit(RLIMIT_CPU, &both);
}

} // namespace vellumry::readersandbox
