/* SPDX-License-Identifier: GPL-3.0-or-later */
/* The program at the head of an AppImage: it makes the squashfs image behind it readable as a folder and starts AppRun
 * there. */
#pragma once

#include <stdbool.h>
#include <stddef.h>
#include <sys/types.h>

/* One AppImage: its file, and where its own program ends and the squashfs image begins. */
typedef struct {
    char path[4096];
    size_t offset;
} appimage;

/* Finds the file that this process was started from. False, with a message, when it cannot be read or holds no image.
 */
bool appimage_find(appimage* image);

/* Copies what is in the image into `folder`, which exists. With a pattern of fnmatch(3), only what it matches, and its
   path is printed. False, with a message, on the first failure. */
bool appimage_extract(const appimage* image, const char* folder, const char* pattern);

/* Removes a folder with all that is in it. */
void remove_tree(const char* folder);

/* Makes the image readable, by FUSE or by extracting it when `may_mount` is false or FUSE fails, until this process
   ends, whatever it has become by exec(3). A process of its own looks after that. `folder`, of 4096 bytes, is then its
   place. False, with a message, when neither works. */
bool keep_readable(const appimage* image, bool may_mount, char* folder);

/* Mounts the image at `folder` and writes one byte to `ready` when it is. Returns when nothing uses it any more after
   the process of `process`, a pidfd, has ended. False when it cannot be mounted. */
bool serve(const appimage* image, const char* folder, int process, int ready);

/* Tells on standard error what is wrong. */
void complain(const char* what, const char* which);
