// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StartupAlert.h"

#include "foundation/Localisation.h"

namespace vellumry {

namespace {

/// Nothing where the keyring is not to blame.
std::optional<StartupAlert> keyringAlert(HistoryFailure failure) {
    switch (failure) {
    case HistoryFailure::keyringAbsent:
        return StartupAlert{
            localised("Vellumry can't reach your Keychain"),
            localised("No keyring answers in this session, and the key to your clipboard history is kept in one. Start "
                      "GNOME Keyring, KWallet or KeePassXC: your history then comes back by itself, with what you "
                      "copied until then. Without a keyring, clips are only kept until you quit Vellumry.")};
    case HistoryFailure::keyringLocked:
        return StartupAlert{
            localised("Your keyring is locked"),
            localised("The key to your clipboard history is in it. Unlock the keyring: your history then comes back "
                      "by itself, with what you copied until then. While it is locked, clips are only kept until you "
                      "quit Vellumry.")};
    case HistoryFailure::keyringRefused:
        return StartupAlert{
            localised("Your keyring refused Vellumry"),
            localised("It does not give out, or does not store, the key to your clipboard history. Allow it in the "
                      "keyring's settings. Until then, clips are only kept until you quit Vellumry.")};
    case HistoryFailure::keyDamaged:
        return StartupAlert{
            localised("The key to your history is damaged"),
            localised("What your keyring keeps as “Vellumry history key” is not a key. Restore it, or remove it to "
                      "begin a new history. Until then, clips are only kept until you quit Vellumry.")};
    default:
        return std::nullopt;
    }
}

StartupAlert fileAlert(HistoryFailure failure, const QString& folder) {
    switch (failure) {
    case HistoryFailure::folderNotWritable:
        return StartupAlert{
            localised("Vellumry can't write to its folder"),
            localised("Check the permissions of %1. Until then, clips are only kept until you quit Vellumry.")
                .arg(folder)};
    case HistoryFailure::diskFull:
        return StartupAlert{
            localised("Your disk is full"),
            localised("Your clipboard history can't be opened. Make room on the disk: it then comes back by itself, "
                      "with what you copied until then.")};
    case HistoryFailure::fileBusy:
        return StartupAlert{
            localised("Another program holds your history"),
            localised("It uses the file in %1. When it is done, your history comes back by itself, with what you "
                      "copied until then.")
                .arg(folder)};
    default:
        break;
    }
    return {
        localised("Vellumry can't read its history"),
        localised("The file in %1 was left as it is. Check its permissions and the disk. Vellumry tries again; until "
                  "then, clips are only kept until you quit it.")
            .arg(folder)};
}

} // namespace

StartupAlert memoryOnlyAlert(HistoryFailure failure, const QString& folder) {
    return keyringAlert(failure).value_or(fileAlert(failure, folder));
}

std::optional<StartupAlert> backupAlert(const QStringList& backups) {
    if (backups.isEmpty())
        return std::nullopt;
    return StartupAlert{
        localised("Vellumry started a fresh history"),
        localised("Your previous history couldn't be read on this computer, so a new one was started. The "
                  "old one is kept as a backup: %1")
            .arg(backups.last())};
}

} // namespace vellumry
