/* SPDX-License-Identifier: GPL-3.0-or-later */
#define _GNU_SOURCE
#include "runtime.h"

#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

/* A folder of its own in `parent`. */
static bool make_folder(const char* parent, const char* name, char* folder) {
    return snprintf(folder, 4096, "%s/%sXXXXXX", parent, name) < 4096 && mkdtemp(folder);
}

static bool make_mount_point(char* folder) {
    const char* wanted = getenv("TMPDIR");
    return (wanted && make_folder(wanted, ".mount_Vellum", folder)) || make_folder("/tmp", ".mount_Vellum", folder);
}

/* A running copy holds a lock on its folder; one without was left behind by a power cut or a kill. */
static void remove_leftovers(const char* parent) {
    DIR* entries = opendir(parent);
    if (!entries)
        return;
    for (struct dirent* entry = readdir(entries); entry; entry = readdir(entries)) {
        char folder[4096];
        if (entry->d_name[0] == '.' ||
            snprintf(folder, sizeof folder, "%s/%s", parent, entry->d_name) >= (int)sizeof folder)
            continue;
        const int lock = open(folder, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (lock >= 0 && flock(lock, LOCK_EX | LOCK_NB) == 0)
            remove_tree(folder);
        if (lock >= 0)
            close(lock);
    }
    closedir(entries);
}

/* In the user's cache rather than in /tmp, which may be memory. The lock on the folder is given to `lock`. */
static bool make_extraction(char* folder, int* lock) {
    char parent[3072];
    const char* cache = getenv("XDG_CACHE_HOME");
    const char* home = getenv("HOME");
    bool is_made = false;
    if (cache && *cache == '/')
        snprintf(parent, sizeof parent, "%s", cache);
    else
        snprintf(parent, sizeof parent, "%s/.cache", home && *home ? home : "/nonexistent");
    mkdir(parent, 0700);
    const size_t end = strlen(parent);
    snprintf(parent + end, sizeof parent - end, "/vellumry-appimage");
    if (mkdir(parent, 0700) == 0 || errno == EEXIST) {
        remove_leftovers(parent);
        is_made = make_folder(parent, "run-", folder);
    }
    is_made = is_made || make_folder("/tmp", "vellumry-appimage-", folder);
    *lock = is_made ? open(folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC) : -1;
    return *lock >= 0 && flock(*lock, LOCK_EX | LOCK_NB) == 0;
}

static void wait_for(int process) {
    struct pollfd end = {.fd = process, .events = POLLIN};
    while (poll(&end, 1, -1) < 0 && errno == EINTR)
        ;
}

/* Ends with the process that it serves and not before: neither with its terminal nor at a logout. */
static void stand_alone(bool is_heard) {
    setsid();
    signal(SIGHUP, SIG_IGN);
    signal(SIGINT, SIG_IGN);
    signal(SIGTERM, SIG_IGN);
    signal(SIGPIPE, SIG_IGN);
    const int nowhere = open("/dev/null", O_RDWR | O_CLOEXEC);
    dup2(nowhere, STDIN_FILENO);
    dup2(nowhere, STDOUT_FILENO);
    if (!is_heard)
        dup2(nowhere, STDERR_FILENO);
    if (chdir("/") != 0)
        _exit(1);
}

static void keep_mounted(const appimage* image, const char* folder, int process, int ready) {
    stand_alone(false);
    (void)serve(image, folder, process, ready);
    rmdir(folder);
}

static void keep_extracted(const appimage* image, const char* folder, int process, int ready) {
    stand_alone(true);
    bool is_kept = appimage_extract(image, folder, NULL) && write(ready, "", 1) == 1;
    close(ready);
    if (is_kept) {
        stand_alone(false);
        wait_for(process);
    }
    remove_tree(folder);
}

typedef void (*keeping)(const appimage* image, const char* folder, int process, int ready);

/* Runs `keep` in a process that is no child of this one, and waits until it is ready or has failed. */
static bool keep_by(keeping keep, const appimage* image, const char* folder) {
    int ends[2];
    const int process = (int)syscall(SYS_pidfd_open, getpid(), 0);
    if (process < 0 || pipe2(ends, O_CLOEXEC) != 0) {
        complain("needs Linux 5.3 or newer", NULL);
        return false;
    }
    const pid_t between = fork();
    if (between == 0) {
        close(ends[0]);
        if (fork() == 0)
            keep(image, folder, process, ends[1]);
        _exit(0);
    }
    close(process);
    close(ends[1]);
    waitpid(between, NULL, 0);
    char byte;
    ssize_t got;
    while ((got = read(ends[0], &byte, 1)) < 0 && errno == EINTR)
        ;
    close(ends[0]);
    return got == 1;
}

bool keep_readable(const appimage* image, bool may_mount, char* folder) {
    if (may_mount && access("/dev/fuse", F_OK) == 0 && make_mount_point(folder) && keep_by(keep_mounted, image, folder))
        return true;
    int lock = -1;
    const bool is_kept = make_extraction(folder, &lock) && keep_by(keep_extracted, image, folder);
    if (!is_kept)
        complain("can neither be mounted nor extracted", image->path);
    if (lock >= 0)
        close(lock); /* the other process holds it too */
    return is_kept;
}
