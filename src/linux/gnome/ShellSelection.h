// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"
#include "linux/wayland/selection/SelectionControl.h"

#include <QByteArray>
#include <optional>

struct _GVariant;

namespace vellumry {

class PolledBus;

/// The selections of a GNOME session by our shell extension (packaging/gnome-shell, interface
/// com.vellumry.GnomeShell.Clipboard), on a bus connection of its own. One thread.
///
/// The extension may go and come back: the lock screen switches extensions off. What we own then is owned again when it
/// is back, unless another program has copied meanwhile.
class ShellSelection final : public SelectionControl {
public:
    /// Whether the session's shell has the extension, switched on. Asks the session bus.
    [[nodiscard]] static bool isThere();
    /// Fails without a session bus. The extension need not be there yet.
    [[nodiscard]] static OrReason<std::unique_ptr<ShellSelection>> create();
    ~ShellSelection() override;

    [[nodiscard]] bool isBroken() const override;
    [[nodiscard]] bool hasPrimary() const override { return true; }
    /// False while the extension is away.
    [[nodiscard]] bool hasDevice() const override { return m_isFollowing; }
    [[nodiscard]] std::unique_ptr<Source> makeSource(const QStringList& mimeTypes) override;
    void setSelection(const Source* source) override;
    /// Of the types of `source` only text is offered.
    void setPrimarySelection(const Source* source) override;
    void sync(std::function<void()> done) override;
    bool roundTrip() override;
    void prepareWait(std::vector<pollfd>& descriptors) override;
    void finishWait(const std::vector<pollfd>& descriptors) override;
    void flush() override;

private:
    class ShellOffer;
    struct ShellSource;
    /// What another program has on the clipboard; `serial` is 0 while it cannot be read.
    struct Standing {
        quint32 serial = 0;
        QStringList types;
    };

    explicit ShellSelection(std::unique_ptr<PolledBus> bus);
    void follow(bool isThere);
    void hear(const char* name, _GVariant* values);
    void takeChange(quint32 serial, const QStringList& types, quint32 kind);
    /// The first notification after the extension came back. True when it reports no new copy.
    bool resume(quint32 serial, const QStringList& types);
    void cancelOwn();
    void own(const QStringList& types);
    void send(const QString& type, quint32 request, bool isForKeeper);
    [[nodiscard]] static std::optional<QByteArray> textOf(const Source& source);
    void tell(std::unique_ptr<Offer> offer) const;

    std::unique_ptr<PolledBus> m_bus;
    bool m_isOurName = false;
    bool m_isKnown = false;     ///< whether the extension is there
    bool m_isFollowing = false; ///< it tells us of changes
    bool m_wasAway = false;     ///< it was there before, and what it tells first may be nothing new
    bool m_hasBeenThere = false;
    std::shared_ptr<Standing> m_standing;
    ShellSource* m_own = nullptr;
    QStringList m_ownedTypes; ///< what the shell was last given, as long as it may still hold it
    int m_unansweredOwns = 0;
};

} // namespace vellumry
