// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/FileAccess.h"
#include "platform/desktop/DesktopExtension.h"
#include "platform/display/HotKeyRegistrar.h"

#include <QCoroTask>
#include <QObject>
#include <QTimer>
#include <functional>
#include <optional>
#include <qqmlregistration.h>

namespace vellumry {

/// The first run: four steps that explain the program, get it the permission that it needs, and let the user try the
/// whole loop. No step demands anything. Main thread.
class OnboardingModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program has it.")
    Q_PROPERTY(int step READ stepNumber NOTIFY stepChanged)
    Q_PROPERTY(bool hasAccessibility READ hasAccessibility NOTIFY changed)
    Q_PROPERTY(bool copied READ copied NOTIFY changed)
    Q_PROPERTY(bool panelOpened READ panelOpened NOTIFY changed)
    Q_PROPERTY(bool pasted READ pasted NOTIFY changed)
    Q_PROPERTY(QString typedText READ typedText WRITE setTypedText NOTIFY changed)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY changed)
    Q_PROPERTY(QString fileAccessMessage READ fileAccessMessage NOTIFY changed)
    Q_PROPERTY(bool isFileAccessAllowed READ isFileAccessAllowed NOTIFY changed)
    Q_PROPERTY(QString shortcutDisplay READ shortcutDisplay NOTIFY changed)
    Q_PROPERTY(QString shortcutProblem READ shortcutProblem NOTIFY changed)
    Q_PROPERTY(QString shortcutOffer READ shortcutOffer NOTIFY changed)
    Q_PROPERTY(bool isKeyringClosed READ isKeyringClosed NOTIFY changed)
    Q_PROPERTY(bool isWaylandSession READ isWaylandSession CONSTANT)
    Q_PROPERTY(bool offersExtension READ offersExtension NOTIFY changed)
    Q_PROPERTY(QString extensionMessage READ extensionMessage NOTIFY changed)
    Q_PROPERTY(QString bindingsFile READ bindingsFile CONSTANT)
    Q_PROPERTY(QString bindings READ bindings CONSTANT)
    Q_PROPERTY(QString sample READ sample CONSTANT)

public:
    enum class Step { welcome, permission, tryIt, done };

    /// What the steps ask of the rest of the program. What is not set does nothing.
    struct Hooks {
        std::function<bool()> isTrusted = [] { return false; };
        std::function<void()> requestTrust = [] {};
        std::function<void(const QString& text)> copy = [](const QString&) {};
        std::function<void()> openPanel = [] {};
        std::function<QString()> shortcutDisplay = [] { return QString(); };
        /// A sentence on the shortcut that another program holds; empty when all are free.
        std::function<QString()> shortcutProblem = [] { return QString(); };
        /// A free one in its place, in words; empty without one.
        std::function<QString()> shortcutOffer = [] { return QString(); };
        std::function<void()> takeOfferedShortcut = [] {};
        std::function<QCoro::Task<FileAccess::Result>()> askFileAccess = []() -> QCoro::Task<FileAccess::Result> {
            co_return FileAccess::Result();
        };
        std::function<void()> unlockKeyring = [] {};
        /// The last step is over, with the user's choice.
        std::function<void(bool launchAtLogin)> finish = [](bool) {};
        bool isWaylandSession = false;
        /// Switches on what lets more work in this session, and starts the program again; not set without such a part.
        std::function<void(std::function<void(DesktopExtension::Outcome)> onAnswered)> switchOnExtension;
        /// Where no program can hold keys.
        OwnBindings ownBindings;
    };

    explicit OnboardingModel(Hooks hooks);
    ~OnboardingModel() override;

    [[nodiscard]] Step step() const { return m_step; }
    [[nodiscard]] int stepNumber() const { return static_cast<int>(m_step); }
    [[nodiscard]] bool hasAccessibility() const { return m_hasAccessibility; }
    [[nodiscard]] bool copied() const { return m_copied; }
    [[nodiscard]] bool panelOpened() const { return m_panelOpened; }
    /// The sample arrived in the field, by whatever key.
    [[nodiscard]] bool pasted() const { return m_typedText.contains(sample()); }
    [[nodiscard]] const QString& typedText() const { return m_typedText; }
    void setTypedText(const QString& text);
    [[nodiscard]] bool launchAtLogin() const { return m_launchAtLogin; }
    void setLaunchAtLogin(bool isWanted);
    [[nodiscard]] QString fileAccessMessage() const;
    [[nodiscard]] bool isFileAccessAllowed() const { return m_fileAccess && m_fileAccess->isAllowed(); }
    [[nodiscard]] QString shortcutDisplay() const { return m_hooks.shortcutDisplay(); }
    [[nodiscard]] QString shortcutProblem() const { return m_hooks.shortcutProblem(); }
    [[nodiscard]] QString shortcutOffer() const { return m_hooks.shortcutOffer(); }
    [[nodiscard]] bool isKeyringClosed() const { return m_isKeyringClosed; }
    [[nodiscard]] bool isWaylandSession() const { return m_hooks.isWaylandSession; }
    /// There is a part of the desktop to be switched on, and the user did not yet.
    [[nodiscard]] bool offersExtension() const { return m_hooks.switchOnExtension && !m_extension; }
    /// What became of switching it on; empty before.
    [[nodiscard]] QString extensionMessage() const;
    /// The file that `bindings` go into; empty where the desktop has a window for them.
    [[nodiscard]] const QString& bindingsFile() const { return m_hooks.ownBindings.file; }
    /// The lines by which the user binds the program's keys; empty where the program holds them itself.
    [[nodiscard]] QString bindings() const { return m_hooks.ownBindings.lines.join(u'\n'); }
    /// What is copied and pasted for a try.
    [[nodiscard]] static QString sample();

    /// The panel was shown, in whatever way.
    void notePanelOpened();
    /// The keyring has to ask the user before the history can be opened; the first run says why and when.
    void setKeyringClosed(bool isClosed);
    /// The shortcuts were registered anew.
    void noteShortcuts() { Q_EMIT changed(); }

    /// To the next step; behind the last one the first run is over.
    Q_INVOKABLE void advance();
    Q_INVOKABLE void requestTrust();
    Q_INVOKABLE void copySample();
    Q_INVOKABLE void copyBindings() { m_hooks.copy(bindings()); }
    Q_INVOKABLE void openPanel() { m_hooks.openPanel(); }
    Q_INVOKABLE void takeOfferedShortcut();
    Q_INVOKABLE void switchOnExtension();
    Q_INVOKABLE void unlockKeyring() { m_hooks.unlockKeyring(); }
    Q_INVOKABLE void checkFiles() { runFileCheck(); }
    /// The try from its beginning.
    Q_INVOKABLE void replay();

Q_SIGNALS:
    void changed();
    void stepChanged();

private:
    void lookForTrust();
    QCoro::Task<void> runFileCheck();

    Hooks m_hooks;
    Step m_step = Step::welcome;
    bool m_hasAccessibility;
    bool m_copied = false;
    bool m_panelOpened = false;
    QString m_typedText;
    bool m_launchAtLogin = true;
    bool m_isKeyringClosed = false;
    std::optional<FileAccess::Result> m_fileAccess;
    std::optional<DesktopExtension::Outcome> m_extension;
    QTimer m_trustPoll; ///< while its step shows: the desktop does not notify of a permission
};

} // namespace vellumry
