/* SPDX-License-Identifier: GPL-3.0-or-later */
/* Starts the program of the AppImage that is readable at the folder of this file. What every desktop has (graphics,
   fonts, X11) is taken from the system; a system without one of those libraries gets ours. */
#define _GNU_SOURCE
#include <dirent.h>
#include <dlfcn.h>
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

static char here[4096];
static char paths[16384]; /* the folders of the libraries that the system lacks, with colons between */

/* Each folder of lib/spare is named as the library in it that others ask for. */
static void look_for(const char* library) {
    if (library[0] == '.' || dlopen(library, RTLD_LAZY | RTLD_LOCAL))
        return;
    const size_t length = strlen(paths);
    snprintf(paths + length, sizeof paths - length, "%s%s/usr/lib/spare/%s", length ? ":" : "", here, library);
}

static void take_what_is_missing(void) {
    char folder[sizeof here + 32];
    snprintf(folder, sizeof folder, "%s/usr/lib/spare", here);
    DIR* spare = opendir(folder);
    if (!spare)
        return;
    for (struct dirent* entry = readdir(spare); entry; entry = readdir(spare))
        look_for(entry->d_name);
    closedir(spare);
    if (!paths[0])
        return;
    const char* before = getenv("LD_LIBRARY_PATH");
    const size_t length = strlen(paths);
    if (before && *before)
        snprintf(paths + length, sizeof paths - length, ":%s", before);
    setenv("LD_LIBRARY_PATH", paths, 1);
}

int main(int count, char** arguments) {
    (void)count;
    const ssize_t length = readlink("/proc/self/exe", here, sizeof here - 1);
    char* end = length > 0 ? strrchr(here, '/') : NULL;
    if (!end)
        return 127;
    *end = '\0';
    take_what_is_missing();
    char program[sizeof here + 32];
    snprintf(program, sizeof program, "%s/usr/bin/vellumry", here);
    arguments[0] = program; /* of which windows take their class */
    execv(program, arguments);
    fprintf(stderr, "AppRun: cannot start %s: %s\n", program, strerror(errno));
    return 127;
}
