/* SPDX-License-Identifier: GPL-3.0-or-later */
#define _GNU_SOURCE
#include "runtime.h"

#include <errno.h>
#include <poll.h>
#include <pthread.h>
#include <spawn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <squashfuse/ll.h>

extern char** environ;

typedef struct {
    const char* folder;
    int process;
} watch;

/* Takes the folder out of sight at once; what is still in use of it goes on until it is closed, and ends the session
 * then. */
static void unmount_lazily(const char* folder) {
    if (umount2(folder, MNT_DETACH) == 0)
        return;
    char* words[] = {"fusermount3", "-u", "-q", "-z", "--", (char*)folder, NULL};
    pid_t helper = 0;
    if (posix_spawnp(&helper, words[0], NULL, NULL, words, environ) == 0)
        waitpid(helper, NULL, 0);
}

static void* unmount_after(void* argument) {
    const watch* watched = argument;
    struct pollfd end = {.fd = watched->process, .events = POLLIN};
    while (poll(&end, 1, -1) < 0 && errno == EINTR)
        ;
    unmount_lazily(watched->folder);
    return NULL;
}

static struct fuse_lowlevel_ops operations(void) {
    struct fuse_lowlevel_ops calls;
    memset(&calls, 0, sizeof calls);
    calls.getattr = sqfs_ll_op_getattr;
    calls.opendir = sqfs_ll_op_opendir;
    calls.releasedir = sqfs_ll_op_releasedir;
    calls.readdir = sqfs_ll_op_readdir;
    calls.lookup = sqfs_ll_op_lookup;
    calls.open = sqfs_ll_op_open;
    calls.create = sqfs_ll_op_create;
    calls.release = sqfs_ll_op_release;
    calls.read = sqfs_ll_op_read;
    calls.readlink = sqfs_ll_op_readlink;
    calls.listxattr = sqfs_ll_op_listxattr;
    calls.getxattr = sqfs_ll_op_getxattr;
    calls.forget = sqfs_ll_op_forget;
    calls.statfs = stfs_ll_op_statfs;
    return calls;
}

static bool serve_session(struct fuse_session* session, const char* folder, int process, int ready) {
    watch watched = {folder, process};
    pthread_t watcher;
    if (pthread_create(&watcher, NULL, unmount_after, &watched) != 0)
        return false;
    const bool is_told = write(ready, "", 1) == 1;
    close(ready);
    fuse_session_loop(session); /* until the kernel has let go of it */
    pthread_join(watcher, NULL);
    return is_told;
}

bool serve(const appimage* image, const char* folder, int process, int ready) {
    sqfs_ll* file_system = sqfs_ll_open(image->path, image->offset);
    if (!file_system)
        return false;
    struct fuse_lowlevel_ops calls = operations();
    struct fuse_args options = FUSE_ARGS_INIT(0, NULL);
    sqfs_ll_chan channel = {0};
    fuse_opt_add_arg(&options, "vellumry");
    fuse_opt_add_arg(&options, "-oro,fsname=Vellumry.AppImage,subtype=squashfuse");
    bool is_served = sqfs_ll_mount(&channel, folder, &options, &calls, sizeof calls, file_system) == SQFS_OK;
    fuse_opt_free_args(&options);
    if (is_served) {
        is_served = serve_session(channel.session, folder, process, ready);
        sqfs_ll_unmount(&channel, folder);
    }
    sqfs_ll_destroy(file_system);
    free(file_system);
    return is_served;
}
