// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/peers/LinuxPeerHistories.h"

#include "linux/peers/ClipmanHistory.h"
#include "linux/peers/CopyQHistory.h"
#include "linux/peers/ForeignFile.h"
#include "linux/peers/GPasteHistory.h"
#include "linux/peers/KlipperDatabaseHistory.h"
#include "linux/peers/KlipperListHistory.h"
#include "linux/peers/PeerItems.h"

#include <QDir>
#include <QStandardPaths>
#include <array>

namespace vellumry {

namespace {

using State = PeerHistory::State;
using Folders = LinuxPeerHistories::Folders;
using Opened = std::expected<std::unique_ptr<PeerReading>, State>;

/// Of those that are held in memory as a whole.
constexpr qint64 largestFile = qint64{256} << 20;

Opened openCopyQ(const Folders& folders) {
    auto reading = std::make_unique<CopyQHistory>(CopyQHistory::tabs(folders.config + QStringLiteral("/copyq")));
    if (reading->isLocked())
        return std::unexpected(State::locked);
    return reading;
}

Opened openGPaste(const Folders& folders) {
    const QString folder = folders.data + QStringLiteral("/gpaste");
    auto file = ForeignFile::open(folder + QStringLiteral("/history.xml"), largestFile);
    if (!file)
        return std::unexpected(stateOf(file.error()));
    return std::make_unique<GPasteHistory>(file->rest(), file->modified(), folder);
}

Opened openKlipper(const Folders& folders) {
    const QString folder = folders.data + QStringLiteral("/klipper");
    // The list stays behind when a newer version has taken it over.
    if (QFile::exists(folder + QStringLiteral("/history3.sqlite")))
        return KlipperDatabaseHistory::open(folder, folders.scratch);
    auto file = ForeignFile::open(folder + QStringLiteral("/history2.lst"), largestFile);
    if (!file)
        return std::unexpected(stateOf(file.error()));
    return std::make_unique<KlipperListHistory>(file->rest(), file->modified());
}

/// "image9.png" before "image10.png".
QStringList picturesIn(const QString& folder) {
    QStringList names = QDir(folder).entryList({QStringLiteral("image*.png")}, QDir::Files, QDir::Name);
    std::ranges::stable_sort(names, {}, &QString::size);
    for (QString& name : names)
        name.prepend(folder + u'/');
    return names;
}

Opened openXfceClipman(const Folders& folders) {
    const QString folder = folders.cache + QStringLiteral("/xfce4/clipman");
    auto file = ForeignFile::open(folder + QStringLiteral("/textsrc"), largestFile);
    if (!file && file.error() != ForeignFile::Failure::missing)
        return std::unexpected(stateOf(file.error()));
    const Date modified = file ? file->modified() : currentDate();
    return std::make_unique<ClipmanHistory>(
        ClipmanHistory::ofXfce(file ? file->rest() : QByteArray(), modified, picturesIn(folder)));
}

Opened openWaylandClipman(const Folders& folders) {
    auto file = ForeignFile::open(folders.data + QStringLiteral("/clipman.json"), largestFile);
    if (!file)
        return std::unexpected(stateOf(file.error()));
    return std::make_unique<ClipmanHistory>(ClipmanHistory::ofWayland(file->rest(), file->modified()));
}

struct Peer {
    const char* identifier;
    const char* program;
    bool (*isThere)(const Folders& folders);
    Opened (*open)(const Folders& folders);
};

const std::array<Peer, 5>& peers() {
    static const std::array<Peer, 5> list{
        Peer{"copyq", "CopyQ",
             [](const Folders& at) { return !CopyQHistory::tabs(at.config + QStringLiteral("/copyq")).isEmpty(); },
             &openCopyQ},
        Peer{"gpaste", "GPaste",
             [](const Folders& at) { return QFile::exists(at.data + QStringLiteral("/gpaste/history.xml")); },
             &openGPaste},
        Peer{"klipper", "Klipper",
             [](const Folders& at) {
                 return QFile::exists(at.data + QStringLiteral("/klipper/history3.sqlite")) ||
                        QFile::exists(at.data + QStringLiteral("/klipper/history2.lst"));
             },
             &openKlipper},
        Peer{"xfce4-clipman", "Clipman (Xfce)",
             [](const Folders& at) { return QFile::exists(at.cache + QStringLiteral("/xfce4/clipman")); },
             &openXfceClipman},
        Peer{"clipman", "clipman (Wayland)",
             [](const Folders& at) { return QFile::exists(at.data + QStringLiteral("/clipman.json")); },
             &openWaylandClipman},
    };
    return list;
}

PeerHistory survey(const Peer& peer, const Folders& folders) {
    PeerHistory history{QString::fromLatin1(peer.identifier), QString::fromLatin1(peer.program)};
    const Opened reading = peer.open(folders);
    if (!reading) {
        history.state = reading.error();
        return history;
    }
    while (const auto clip = (*reading)->next()) {
        if (clip->items.empty() && !clip->isLocked)
            continue;
        ++history.clips;
        history.pictures += !clip->items.empty() && peeritems::isPicture(*clip) ? 1 : 0;
    }
    if ((*reading)->isDamaged())
        history.state = State::damaged;
    return history;
}

} // namespace

LinuxPeerHistories::Folders LinuxPeerHistories::Folders::ofUser() {
    using Paths = QStandardPaths;
    // In memory, where there is such a folder: what other programs keep in the open need not be written once more.
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return {Paths::writableLocation(Paths::GenericDataLocation), Paths::writableLocation(Paths::GenericConfigLocation),
            Paths::writableLocation(Paths::GenericCacheLocation), runtime.isEmpty() ? QDir::tempPath() : runtime};
}

std::vector<PeerHistory> LinuxPeerHistories::find() {
    std::vector<PeerHistory> found;
    for (const Peer& peer : peers()) {
        if (!peer.isThere(m_folders))
            continue;
        PeerHistory history = survey(peer, m_folders);
        if (history.clips > 0 || history.state != State::whole)
            found.push_back(std::move(history));
    }
    return found;
}

std::unique_ptr<PeerReading> LinuxPeerHistories::open(const QString& identifier) {
    for (const Peer& peer : peers()) {
        if (identifier == QLatin1String(peer.identifier) && peer.isThere(m_folders))
            return peer.open(m_folders).value_or(nullptr);
    }
    return nullptr;
}

} // namespace vellumry
