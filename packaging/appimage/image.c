/* SPDX-License-Identifier: GPL-3.0-or-later */
#define _GNU_SOURCE
#include "runtime.h"

#include <elf.h>
#include <errno.h>
#include <fcntl.h>
#include <fnmatch.h>
#include <ftw.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <squashfuse/squashfuse.h>
#include <squashfuse/util.h>

bool appimage_find(appimage* image) {
    const ssize_t length = readlink("/proc/self/exe", image->path, sizeof image->path - 1);
    if (length <= 0) {
        complain("its own file is not known", NULL);
        return false;
    }
    image->path[length] = '\0';
    Elf64_Ehdr header;
    const int file = open("/proc/self/exe", O_RDONLY | O_CLOEXEC);
    const bool is_read = file >= 0 && read(file, &header, sizeof header) == sizeof header;
    if (file >= 0)
        close(file);
    /* The table of sections is the last thing in what the linker wrote. */
    image->offset = is_read ? header.e_shoff + (size_t)header.e_shentsize * header.e_shnum : 0;
    if (!is_read)
        complain("cannot read", image->path);
    return is_read;
}

static bool write_all(int file, const char* bytes, size_t size) {
    while (size > 0) {
        const ssize_t written = write(file, bytes, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes += written;
        size -= (size_t)written;
    }
    return true;
}

static bool extract_file(sqfs* fs, sqfs_inode* inode, const char* target, mode_t mode) {
    static char block[1 << 17];
    unlink(target);
    const int file = open(target, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode & 0777);
    if (file < 0)
        return false;
    bool is_whole = true;
    for (uint64_t at = 0; is_whole && at < inode->xtra.reg.file_size;) {
        sqfs_off_t size = sizeof block;
        is_whole = sqfs_read_range(fs, inode, (sqfs_off_t)at, &size, block) == SQFS_OK && size > 0 &&
                   write_all(file, block, (size_t)size);
        at += (uint64_t)size;
    }
    return close(file) == 0 && is_whole;
}

static bool extract_link(sqfs* fs, sqfs_inode* inode, const char* target) {
    char goal[4096];
    size_t size = sizeof goal;
    unlink(target);
    return sqfs_readlink(fs, inode, goal, &size) == SQFS_OK && symlink(goal, target) == 0;
}

/* Makes the folders above `path`, which begins with `folder`. */
static void make_parents(char* path, size_t from) {
    for (char* at = strchr(path + from, '/'); at; at = strchr(at + 1, '/')) {
        *at = '\0';
        mkdir(path, 0755);
        *at = '/';
    }
}

static bool extract_entry(sqfs* fs, sqfs_dir_entry* entry, char* target, size_t root) {
    sqfs_inode inode;
    if (sqfs_inode_get(fs, &inode, sqfs_dentry_inode(entry)) != SQFS_OK)
        return false;
    const mode_t mode = inode.base.mode;
    make_parents(target, root);
    if (S_ISDIR(mode))
        return mkdir(target, 0755) == 0 || errno == EEXIST;
    if (S_ISLNK(mode))
        return extract_link(fs, &inode, target);
    return !S_ISREG(mode) || extract_file(fs, &inode, target, mode);
}

static bool extract_all(sqfs* fs, const char* folder, const char* pattern) {
    sqfs_traverse entries;
    sqfs_err problem = sqfs_traverse_open(&entries, fs, sqfs_inode_root(fs));
    if (problem != SQFS_OK)
        return false;
    bool is_whole = true;
    while (is_whole && sqfs_traverse_next(&entries, &problem)) {
        if (entries.dir_end || (pattern && fnmatch(pattern, entries.path, 0) != 0))
            continue;
        char target[8192];
        snprintf(target, sizeof target, "%s/%s", folder, entries.path);
        errno = 0;
        is_whole = extract_entry(fs, &entries.entry, target, strlen(folder) + 1);
        if (!is_whole)
            complain("cannot extract", target);
        else if (pattern)
            puts(target);
    }
    sqfs_traverse_close(&entries);
    return is_whole && problem == SQFS_OK;
}

bool appimage_extract(const appimage* image, const char* folder, const char* pattern) {
    sqfs fs;
    if (sqfs_open_image(&fs, image->path, image->offset) != SQFS_OK)
        return false; /* which has told why */
    const bool is_whole = extract_all(&fs, folder, pattern);
    const int file = fs.fd;
    sqfs_destroy(&fs);
    sqfs_fd_close(file);
    return is_whole;
}

static int remove_entry(const char* path, const struct stat* status, int kind, struct FTW* place) {
    (void)status, (void)kind, (void)place;
    remove(path);
    return 0;
}

void remove_tree(const char* folder) {
    nftw(folder, remove_entry, 16, FTW_DEPTH | FTW_PHYS | FTW_MOUNT);
}
