// SPDX-License-Identifier: GPL-3.0-or-later

// Draws the settings, the first run, alerts, toasts and the bar of the Paste Stack in the language of the environment,
// without a display: `window_gallery FOLDER [--dark] [PICTURE…]`, all without one. Tells of texts that do not fit, and
// ends with 1 when there are any.

#include "foundation/Localisation.h"
#include "gallery/CutTexts.h"
#include "linux/look/EmojiInColour.h"
#include "onboarding/OnboardingModel.h"
#include "onboarding/OnboardingWindowController.h"
#include "paste/PasteStack.h"
#include "settings/SettingsModel.h"
#include "settings/SettingsWindowController.h"
#include "shell/AlertWindow.h"
#include "shell/HistoryFolder.h"
#include "shell/StackHUDController.h"
#include "shell/ToastController.h"
#include "support/Eventually.h"
#include "support/FakeKeyboardLayout.h"
#include "support/FakePanelSurface.h"
#include "support/FakePasteboard.h"
#include "support/Transfers.h"
#include "views/ViewEngine.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickView>
#include <cstdio>

namespace vellumry {

namespace {

class WindowGallery {
public:
    WindowGallery(QString folder, QStringList wanted)
        : m_folder(std::move(folder))
        , m_wanted(std::move(wanted)) {
        QDir().mkpath(m_folder);
        views.reducesMotion = [] { return true; };
        surface.blends = true;
    }

    void drawAll() {
        drawSettings();
        drawFirstRun();
        drawAlerts();
        drawSmall();
    }
    [[nodiscard]] bool hasTroubles() const { return m_hasTroubles; }

    ViewEngine views;

private:
    [[nodiscard]] bool isWanted(const QString& name) const { return m_wanted.isEmpty() || m_wanted.contains(name); }

    void draw(const QString& name, QQuickView& view, bool isOnADesk = false) {
        if (!isWanted(name))
            return;
        if (isOnADesk)
            view.setColor(views.isDark() ? QColor(0x2b, 0x33, 0x3d) : QColor(0xb9, 0xc6, 0xd2));
        view.rootObject()->setOpacity(1);
        view.setOpacity(1);
        eventually([] { return false; }, 300); // icons and sizes come from other threads
        const QString file = m_folder + QLatin1Char('/') + name + QStringLiteral(".png");
        if (!view.grabWindow().save(file))
            std::fprintf(stderr, "cannot write %s\n", qUtf8Printable(file));
        const QStringList sheets{QStringLiteral("settings-clear"), QStringLiteral("settings-desktop"),
                                 QStringLiteral("settings-import"), QStringLiteral("settings-export"),
                                 QStringLiteral("settings-applications")};
        for (const QString& trouble : textsThatDoNotFit(*view.contentItem())) {
            if (sheets.contains(name) && trouble.startsWith(QLatin1String("over another")))
                continue; // it lies over a pane
            std::fprintf(stderr, "%s: %s\n", qUtf8Printable(name), qUtf8Printable(trouble));
            m_hasTroubles = true;
        }
    }

    static DesktopState desktop() {
        DesktopState state;
        state.capabilities = {
            Capability::found(QStringLiteral("XFixes")).serving({Feature::capture}),
            Capability::found(QStringLiteral("XInput2")).serving({Feature::shortcuts, Feature::stack}),
            Capability::missing(QStringLiteral("XTest"), QStringLiteral("the X server lacks it"))
                .serving({Feature::paste}),
            Capability::found(QStringLiteral("keyring")).serving({Feature::keyring}),
            Capability::without(QStringLiteral("text recognition"), QStringLiteral("no language data of Tesseract"))
                .serving({Feature::reading}),
            Capability::without(QStringLiteral("tray"), QStringLiteral("no StatusNotifierWatcher"))
                .serving({Feature::tray})};
        return state;
    }

    void drawSettings() {
        UserDefaults defaults;
        Preferences preferences(defaults);
        defaults.setObject(QStringLiteral("ignoredApps"), QStringList{QStringLiteral("org.keepassxc.KeePassXC"),
                                                                      QStringLiteral("org.gnome.Epiphany")});
        const FakeKeyboardLayout layout;
        SettingsModel model(preferences, layout);
        model.actions.isTrusted = [] { return true; };
        model.actions.isLaunchedAtLogin = [] { return true; };
        model.actions.clipCount = [] { return qint64(4318); };
        model.actions.historySize = [] { return fileSizeText(187'400'000); };
        model.actions.desktopState = [] { return desktop(); };
        model.actions.updates = [] { return UpdateState{true, true, QStringLiteral("1.4.0"), 2.0 * 86'400}; };
        model.actions.installedApplications = []() -> QCoro::Task<std::vector<InstalledApplication>> {
            co_return std::vector<InstalledApplication>{
                {QStringLiteral("org.keepassxc.KeePassXC"),
                 QStringLiteral("KeePassXC"),
                 {},
                 QStringLiteral("KeePassXC")},
                {QStringLiteral("org.gimp.GIMP"), QStringLiteral("GIMP"), {}, QStringLiteral("GIMP")},
                {QStringLiteral("org.kde.kate"), QStringLiteral("Kate"), {}, QStringLiteral("Kate")}};
        };
        model.actions.allowFileFolders = []() -> QCoro::Task<FileAccess::Result> { co_return FileAccess::Result(); };
        Transfers transfers;
        transfers.peers.found = {
            {QStringLiteral("copyq"), QStringLiteral("CopyQ"), PeerHistory::State::whole, 1204, 3},
            {QStringLiteral("gpaste"), QStringLiteral("GPaste"), PeerHistory::State::damaged, 96, 1}};
        SettingsWindowController controller(model, transfers.model, views);
        const char* const panes[]{"settings-general", "settings-shortcuts", "settings-history", "settings-privacy",
                                  "settings-about"};
        for (int pane = 0; pane < 5; ++pane) {
            controller.show(pane);
            draw(QString::fromLatin1(panes[pane]), *controller.window());
        }
        controller.show(1);
        model.setShortcutProblems(
            {localised("%1 is already used by another app. Pick another shortcut.").arg(localised("⌃⌘V"))});
        draw(QStringLiteral("settings-shortcut-taken"), *controller.window());
        controller.show(2);
        model.setSheet(QStringLiteral("clear"));
        draw(QStringLiteral("settings-clear"), *controller.window());
        model.setSheet(QStringLiteral("import"));
        (void)eventually([&transfers] { return transfers.model.historyCount() > 0; });
        draw(QStringLiteral("settings-import"), *controller.window());
        model.setSheet(QStringLiteral("export"));
        controller.window()
            ->rootObject()
            ->findChild<QQuickItem*>(QStringLiteral("exportFolder"))
            ->setProperty("text", QStringLiteral("/home/joan/Vellumry 2026-03-14"));
        draw(QStringLiteral("settings-export"), *controller.window());
        controller.show(3);
        model.beginChoosing(false);
        model.toggleChosen(0);
        draw(QStringLiteral("settings-applications"), *controller.window());
        controller.show(0);
        model.setSheet(QStringLiteral("report"));
        draw(QStringLiteral("settings-desktop"), *controller.window());
        model.setSheet({});
        controller.close();
        // The window goes with the next events, and before what it shows.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    OnboardingModel::Hooks firstRun() {
        OnboardingModel::Hooks hooks;
        hooks.isTrusted = [this] { return m_isTrusted; };
        hooks.shortcutDisplay = [] { return localised("⌃") + localised("⌘") + QLatin1Char('V'); };
        hooks.shortcutProblem = [this] {
            return m_isTrusted ? QString()
                               : localised("%1 is already used by another app. Pick another shortcut.")
                                     .arg(localised("⌃") + localised("⌘") + QLatin1Char('V'));
        };
        hooks.shortcutOffer = [this] {
            return m_isTrusted ? QString() : localised("⌃") + localised("⌥") + QLatin1Char('V');
        };
        return hooks;
    }

    void drawFirstRun() {
        for (const bool isTrusted : {true, false}) {
            m_isTrusted = isTrusted;
            OnboardingModel model(firstRun());
            Transfers transfers;
            transfers.peers.found = {
                {QStringLiteral("copyq"), QStringLiteral("CopyQ"), PeerHistory::State::whole, 1204, 3}};
            OnboardingWindowController controller(model, transfers.model, views);
            model.setKeyringClosed(!isTrusted);
            controller.show();
            const QString suffix = isTrusted ? QString() : QStringLiteral("-refused");
            for (const char* step : {"first-welcome", "first-permission", "first-try", "first-done"}) {
                const QString name = QString::fromLatin1(step) + suffix;
                if (isTrusted || name != QLatin1String("first-welcome-refused"))
                    draw(name, *controller.window());
                if (name != QLatin1String("first-done") + suffix)
                    model.advance();
            }
        }
    }

    void drawAlerts() {
        const auto window = [] { return qobject_cast<QQuickView*>(QGuiApplication::topLevelWindows().constLast()); };
        {
            AlertWindow alert(
                memoryOnlyAlert(HistoryFailure::keyringLocked, QStringLiteral("/home/joan/.local/share/Vellumry")),
                views);
            alert.show();
            draw(QStringLiteral("alert"), *window());
        }
        AlertWindow question(AlertWindow::Question{localised("Clear your clipboard history?"),
                                                   localised("Pinned clips are kept. This can't be undone."),
                                                   localised("Clear History"), localised("Cancel")},
                             views);
        question.show();
        draw(QStringLiteral("alert-question"), *window());
    }

    static PasteStack::Item waiting() {
        PasteStack::Item item;
        item.payload.items = {PasteboardItem{{{QStringLiteral("public.utf8-plain-text"), QByteArray("text")}}, {}}};
        return item;
    }

    void drawSmall() {
        const auto window = [this] { return qobject_cast<QQuickView*>(surface.adopted.constLast()); };
        ToastController toast(surface, views);
        toast.show({QStringLiteral("exclamationmark.triangle.fill"),
                    localised("Vellumry can't open your screenshots folder. Allow it in Privacy & Security → Files and "
                              "Folders"),
                    ToastMessage::Tone::warning},
                   60, surface.screen);
        draw(QStringLiteral("toast"), *window(), true);
        FakePasteboard pasteboard;
        PasteStack stack(
            pasteboard, [] { return false; },
            [](std::vector<PasteboardItem> items, std::vector<FileRef>) { return std::optional(std::move(items)); });
        StackHUDController bar(stack, surface, views);
        stack.start({});
        bar.show();
        draw(QStringLiteral("stack-empty"), *window(), true);
        stack.start({waiting(), waiting(), waiting()});
        bar.show();
        draw(QStringLiteral("stack-waiting"), *window(), true);
        while (stack.count() > 0)
            (void)stack.pasteNext();
        draw(QStringLiteral("stack-over"), *window(), true);
    }

    QString m_folder;
    QStringList m_wanted;
    FakePanelSurface surface;
    bool m_isTrusted = true;
    bool m_hasTroubles = false;
};

} // namespace

} // namespace vellumry

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    vellumry::drawEmojiInColour();
    QGuiApplication::setApplicationVersion(QStringLiteral("0.1.0"));
    vellumry::installCatalogue();
    QCommandLineParser parser;
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("where the pictures go"));
    parser.addPositionalArgument(QStringLiteral("pictures"), QStringLiteral("which of them"),
                                 QStringLiteral("[picture…]"));
    const QCommandLineOption dark(QStringLiteral("dark"));
    parser.addOption(dark);
    parser.process(application);
    const QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        parser.showHelp(2);
    vellumry::WindowGallery gallery(words.first(), words.mid(1));
    gallery.views.setAppearance(parser.isSet(dark) ? vellumry::ViewEngine::Appearance::dark
                                                   : vellumry::ViewEngine::Appearance::light);
    gallery.drawAll();
    return gallery.hasTroubles() ? 1 : 0;
}
