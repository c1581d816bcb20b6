// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ReaderSandbox.h"
#include "reader/ReaderService.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <fcntl.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <string_view>
#include <unistd.h>

using namespace vellumry;

namespace {

/// The recognition library says on the error output what it makes of a picture; that must not reach a log.
void silenceErrors() {
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nowhere, STDERR_FILENO);
    close(nowhere);
}

/// A picture's pixels go back to the system as soon as they are freed; the allocator would come to keep blocks of up to
/// 32 MiB.
void giveLargeBlocksBack() {
#ifdef __GLIBC__
    constexpr int largeBlock = 512 * 1024;
    mallopt(M_MMAP_THRESHOLD, largeBlock);
#endif
}

/// An AppImage has plugins for HEIF of its own, or none: those of the system are made for the system's library.
void takeOwnPlugins() {
    const QString own = QCoreApplication::applicationDirPath() + QStringLiteral("/../../lib/vellumry/heif");
    if (QFileInfo(own).isDir())
        qputenv("LIBHEIF_PLUGIN_PATH", QFile::encodeName(QDir::cleanPath(own)));
}

} // namespace

/// `vellumry-reader`: opens pictures; a copy is not kept before its thumbnail is made, so it is as urgent as any
/// program. `vellumry-reader text`: reads the text in them too, behind everything else.
int main(int argc, char** argv) {
    using readersandbox::Urgency;
    giveLargeBlocksBack();
    const bool readsText = argc > 1 && std::string_view(argv[1]) == "text";
    readersandbox::enter(readsText ? Urgency::background : Urgency::awaited);
    // Tells Qt where its decoders are; there is no event loop.
    const QCoreApplication application(argc, argv);
    takeOwnPlugins();
    std::unique_ptr<PictureReader> pictureReader;
    std::string languages;
    if (readsText) {
        silenceErrors();
        pictureReader = PictureReader::create();
        languages = pictureReader ? pictureReader->dataFolder().toStdString() : std::string();
    }
    ReaderService service(STDIN_FILENO, std::move(pictureReader));
    readersandbox::seal(languages);
    return service.run() == ReaderService::End::idle ? 0 : 1;
}
