// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantList>
#include <optional>

namespace vellumry {

/// The conversation with our shell extension about keys and windows (interface com.vellumry.GnomeShell.Desktop). The
/// extension may go and come back at any time. Main thread.
class ShellLink final : public QObject {
    Q_OBJECT
public:
    explicit ShellLink(QDBusConnection bus = QDBusConnection::sessionBus());
    ~ShellLink() override;

    /// Whether the extension is there now.
    [[nodiscard]] bool isThere() const { return m_isThere; }
    /// Calls a method without waiting. Nothing while the extension is away.
    void tell(const QString& method, const QVariantList& arguments) const;
    /// Calls a method and waits for the shell, which is the display server, a second at most. Nothing
    /// when it refuses, hangs or is away.
    [[nodiscard]] std::optional<QVariantList> ask(const QString& method, const QVariantList& arguments) const;

Q_SIGNALS:
    /// The extension came or went.
    void thereChanged(bool isThere);
    /// Another window has the keyboard; `window` is 0 where none has.
    void focusChanged(qulonglong window, const QString& application, uint process);
    void windowClosed(qulonglong window);
    void keyPressed(uint id);

private Q_SLOTS:
    void hearFocus(qulonglong window, const QString& application, uint process);
    void hearClosed(qulonglong window);
    void hearKey(uint id);

private:
    void setThere(bool isThere);

    QDBusConnection m_bus;
    bool m_isThere = false;
};

} // namespace vellumry
