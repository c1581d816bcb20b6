/* SPDX-License-Identifier: GPL-3.0-or-later */
#define _GNU_SOURCE
#include "runtime.h"

#include <errno.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

enum { failure = 127 };

static const char help[] =
    "Options of the AppImage itself; all others are the program's:\n"
    "  --appimage-extract [PATTERN]  extract it, or what matches, into squashfs-root here\n"
    "  --appimage-extract-and-run    run it extracted, without FUSE (as APPIMAGE_EXTRACT_AND_RUN=1)\n"
    "  --appimage-mount              mount it, print where, until Ctrl+C\n"
    "  --appimage-offset             print where the squashfs image begins\n"
    "  --appimage-version            print what made it\n"
    "  --appimage-help               print this\n";

void complain(const char* what, const char* which) {
    fprintf(stderr, "AppImage: %s%s%s%s%s\n", what, which ? " " : "", which ? which : "", errno ? ": " : "",
            errno ? strerror(errno) : "");
}

static int extract_here(const appimage* image, const char* pattern) {
    const char* folder = "squashfs-root";
    if (mkdir(folder, 0755) != 0 && errno != EEXIST) {
        complain("cannot make", folder);
        return failure;
    }
    return appimage_extract(image, folder, pattern ? pattern : "*") ? 0 : failure;
}

static int mount_until_interrupted(const appimage* image) {
    char folder[4096];
    sigset_t ends;
    sigemptyset(&ends);
    sigaddset(&ends, SIGINT);
    sigaddset(&ends, SIGTERM);
    sigaddset(&ends, SIGHUP);
    sigprocmask(SIG_BLOCK, &ends, NULL);
    if (!keep_readable(image, true, folder))
        return failure;
    puts(folder);
    fflush(stdout);
    int received = 0;
    sigwait(&ends, &received);
    return 0;
}

/* What an AppImage passes to AppRun. */
static void tell_of_place(const appimage* image, const char* folder, const char* called) {
    char here[4096];
    setenv("APPIMAGE", image->path, 1);
    setenv("APPDIR", folder, 1);
    setenv("ARGV0", called, 1);
    if (getcwd(here, sizeof here))
        setenv("OWD", here, 1);
}

static int run(const appimage* image, bool may_mount, char** arguments) {
    char folder[4096];
    char program[sizeof folder + sizeof "/AppRun"];
    if (!keep_readable(image, may_mount, folder))
        return failure;
    tell_of_place(image, folder, arguments[0]);
    snprintf(program, sizeof program, "%s/AppRun", folder);
    execv(program, arguments);
    complain("cannot start", program);
    return failure;
}

int main(int count, char** arguments) {
    appimage image;
    if (!appimage_find(&image))
        return failure;
    const char* wish = count > 1 ? arguments[1] : "";
    const char* without = getenv("APPIMAGE_EXTRACT_AND_RUN");
    bool may_mount = !without || !*without || strcmp(without, "0") == 0;
    if (strcmp(wish, "--appimage-extract") == 0)
        return extract_here(&image, arguments[2]);
    if (strcmp(wish, "--appimage-mount") == 0)
        return mount_until_interrupted(&image);
    if (strcmp(wish, "--appimage-offset") == 0)
        return printf("%zu\n", image.offset) < 0;
    if (strcmp(wish, "--appimage-version") == 0)
        return puts("Vellumry's own runtime for AppImages of type 2") < 0;
    if (strcmp(wish, "--appimage-help") == 0)
        return fputs(help, stdout) < 0;
    if (strcmp(wish, "--appimage-extract-and-run") == 0) {
        may_mount = false;
        arguments[1] = arguments[0];
        arguments++;
    } else if (strncmp(wish, "--appimage-", strlen("--appimage-")) == 0) {
        errno = 0;
        complain("unknown option", wish);
        return failure;
    }
    return run(&image, may_mount, arguments);
}
