// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QTemporaryDir>
#include <optional>

namespace vellumry {

/// A session bus of the test's own that can start nothing by itself. This process and its children meet it as the
/// session's bus, with folders of their own, as long as it lives.
class PrivateBus {
public:
    PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus();

    [[nodiscard]] bool isRunning() const { return !m_address.isEmpty(); }
    [[nodiscard]] QString address() const { return m_address; }
    [[nodiscard]] QString folder() const { return m_folder.path(); }

    /// Puts a keyring on the bus, unlocked, its password empty.
    [[nodiscard]] bool startKeyring();
    /// Keeps the keyring from answering, or lets it go on.
    void setKeyringHanging(bool isHanging);
    /// What a program of the session prints; nothing to read when it fails.
    [[nodiscard]] std::optional<QByteArray> output(const QString& program, const QStringList& arguments,
                                                   const QByteArray& input = QByteArray());
    /// Locks the default collection.
    [[nodiscard]] bool lockKeyring() { return manageKeyring("lock"); }
    /// Unlocks it without a question.
    [[nodiscard]] bool unlockKeyring() { return manageKeyring("unlock"); }
    /// Leaves a keyring service that has no collection, as one whose only keyring is closed.
    [[nodiscard]] bool deleteKeyring() { return manageKeyring("delete"); }
    /// Puts another collection beside the default one, and locks it.
    [[nodiscard]] bool addLockedKeyring() { return manageKeyring("add-locked"); }

private:
    void end(QProcess& process);
    [[nodiscard]] bool manageKeyring(const char* command);

    QTemporaryDir m_folder;
    QProcess m_bus;
    QProcess m_keyring;
    QString m_address;
};

} // namespace vellumry
