// SPDX-License-Identifier: GPL-3.0-or-later

// Draws the panel in each of its states, in the language of the environment, without a display: `panel_gallery FOLDER
// [--dark] [--rtl] [--text-scale FACTOR] [STATE…]`, all states without one. QT_SCALE_FACTOR sets the scale. Tells of
// texts that do not fit.

#include "foundation/Localisation.h"
#include "gallery/CutTexts.h"
#include "gallery/MadeUpClips.h"
#include "linux/look/EmojiInColour.h"
#include "panel/PanelController.h"
#include "shell/StatusMenu.h"
#include "support/FakeDragSource.h"
#include "support/FakeImageCodec.h"
#include "support/FakePanelSurface.h"
#include "support/PasteWorld.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickView>
#include <algorithm>
#include <cstdio>

namespace vellumry {

namespace {

class Gallery : public PasteWorld {
public:
    explicit Gallery(QString folder)
        : m_folder(std::move(folder)) {
        now = currentDate() - 20;
        surface.blends = true;
        target.trusted = true;
    }

    void setAppearance(ViewEngine::Appearance appearance) { views.setAppearance(appearance); }

    /// How large the desktop wants texts.
    void setTextScale(double factor) { views.setDesktopLook({.textScale = factor}); }

    /// What somebody copies in a day; the last one is the newest.
    void fill() {
        pinned(drafts::text(QStringLiteral("Kind regards,\nJoan Eldridge")), "Mail");
        from(drafts::text(QStringLiteral("Meeting moved to Thursday, 14:30, room Curie")), "Calendar");
        from(madeup::link("https://www.freedesktop.org/wiki/Specifications/clipboards-spec/?from=history#primary"),
             "Firefox");
        from(madeup::code(), "Konsole");
        from(photo(), "Image Viewer");
        from(madeup::colour("#3f7fd9"), "Inkscape");
        from(drafts::secret(QStringLiteral("correct horse battery staple")), "KeePassXC");
        from(drafts::files({QStringLiteral("/home/joan/Letters/offer.odt"),
                            QStringLiteral("/home/joan/Pictures/roof.jpg"),
                            QStringLiteral("/home/joan/Letters/old draft.odt")}),
             "Files");
        fileStatuses = {{QStringLiteral("/home/joan/Pictures/roof.jpg"),
                         FileStatus::moved(QStringLiteral("/home/joan/Archive/2026/roof.jpg"))},
                        {QStringLiteral("/home/joan/Letters/old draft.odt"), FileStatus::missing()}};
        from(madeup::rich(), "LibreOffice Writer");
        from(drafts::text(QStringLiteral(
                 "Dear neighbours,\n\nthe roof is going to be repaired next week. Please keep the attic windows shut "
                 "from Monday to Wednesday, and move what stands in the yard.\n\nThe crane comes on Tuesday at seven. "
                 "Who needs to drive out before that asks Mr Okafor on the ground floor 🙂\n\nThank you!\nJoan")),
             "Text Editor");
    }

    void drawAll(const QStringList& wanted) {
        const std::vector<std::pair<QString, std::function<void()>>> states = {
            {QStringLiteral("text"), [this] { choose("Dear"); }},
            {QStringLiteral("styled"), [this] { choose("Minutes"); }},
            {QStringLiteral("transforms"),
             [this] {
                 choose("Dear");
                 panel.model().toggleTransforms();
                 panel.model().handle(PanelModel::Command::down);
             }},
            {QStringLiteral("code"), [this] { choose("#include"); }},
            {QStringLiteral("link"), [this] { choose("https"); }},
            {QStringLiteral("image"), [this] { choose("Image"); }},
            {QStringLiteral("color"), [this] { choose("#3f7"); }},
            {QStringLiteral("files"), [this] { choose("offer"); }},
            {QStringLiteral("secret"), [this] { choose("correct"); }},
            {QStringLiteral("several"),
             [this] {
                 choose("Dear");
                 for (int count = 0; count < 5; ++count)
                     panel.model().handle(PanelModel::Command::extendDown);
             }},
            {QStringLiteral("search"), [this] { panel.model().searchTextEdited(QStringLiteral("roof")); }},
            {QStringLiteral("in-vain"), [this] { panel.model().searchTextEdited(QStringLiteral("walrus")); }},
            {QStringLiteral("deleted"),
             [this] {
                 choose("Meeting");
                 panel.model().deleteSelected();
             }},
            {QStringLiteral("menu-of-a-clip"), [this] { press(Qt::Key_Menu, "offer", 0); }},
            {QStringLiteral("menu-of-several"), [this] { press(Qt::Key_Menu, "Dear", 3); }},
            {QStringLiteral("menu"), [this] { press(Qt::Key_F10, "Dear", 0); }},
            {QStringLiteral("drag"), [this] { drag("offer", 0); }},
            {QStringLiteral("drag-of-several"), [this] { drag("Dear", 3); }},
            {QStringLiteral("no-keys"), [this] { choose("Meeting"); }},
            {QStringLiteral("empty"), [] {}},
        };
        for (const auto& [name, arrange] : states) {
            if (wanted.isEmpty() || wanted.contains(name))
                draw(name, arrange);
        }
    }

private:
    ClipRef from(ClipDraft draft, const char* application) {
        draft.sourceAppName = QString::fromUtf8(application);
        return add(std::move(draft));
    }
    void pinned(ClipDraft draft, const char* application) {
        awaited(store.setPinned(from(std::move(draft), application)->id, true, ++now));
    }
    ClipDraft photo() {
        const QImage image = madeup::hills(QSize(1280, 720));
        codec.picture = madeup::png(
            image.scaledToWidth(static_cast<int>(660 * qGuiApp->devicePixelRatio()), Qt::SmoothTransformation));
        ClipDraft draft = drafts::image(madeup::png(image));
        draft.title = QStringLiteral("Image 1280 × 720");
        draft.searchText = draft.title;
        draft.thumbnail = madeup::png(image.scaledToWidth(160, Qt::SmoothTransformation));
        return draft;
    }

    void choose(const char* beginning) {
        const auto found = std::ranges::find_if(store.clips(), [&](const ClipRef& clip) {
            return clip->title.toString().startsWith(QString::fromUtf8(beginning));
        });
        if (found != store.clips().end())
            panel.model().selectOnly((*found)->id);
    }

    /// A key, with that clip and so many below it chosen.
    void press(Qt::Key key, const char* beginning, int below) {
        choose(beginning);
        for (int count = 0; count < below; ++count)
            panel.model().handle(PanelModel::Command::extendDown);
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QGuiApplication::sendEvent(surface.adopted.first(), &event);
        }
    }

    /// The pointer carries that clip and so many below it.
    void drag(const char* beginning, int below) {
        choose(beginning);
        for (int count = 0; count < below; ++count)
            panel.model().handle(PanelModel::Command::extendDown);
        auto* window = qobject_cast<QQuickView*>(surface.adopted.first());
        const QQuickItem* const title = titled(*window->rootObject(), QString::fromUtf8(beginning));
        if (!title)
            return;
        const QPointF place = title->mapToScene(QPointF(0, title->height() / 2));
        const int before = source.begun;
        pointer(*window, QEvent::MouseButtonPress, place, Qt::LeftButton);
        pointer(*window, QEvent::MouseMove, place + QPointF(20, 0), Qt::NoButton);
        // What is dragged is fetched first.
        eventually([&] { return source.begun > before; });
    }
    /// A button that is held would keep the next state from its keys.
    void drop() {
        source.cancel();
        if (auto* window = qobject_cast<QQuickView*>(surface.adopted.first()))
            pointer(*window, QEvent::MouseButtonRelease, QPointF(), Qt::LeftButton);
    }
    static void pointer(QQuickView& window, QEvent::Type type, QPointF place, Qt::MouseButton button) {
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, window.mapToGlobal(place), button, held, Qt::NoModifier);
        QGuiApplication::sendEvent(&window, &event);
    }
    static QQuickItem* titled(QQuickItem& item, const QString& beginning) {
        if (item.isVisible() && item.inherits("QQuickText") && item.property("text").toString().startsWith(beginning))
            return &item;
        for (QQuickItem* const child : item.childItems()) {
            if (QQuickItem* const found = titled(*child, beginning))
                return found;
        }
        return nullptr;
    }
    /// The window to draw: that of what is dragged while there is one, else the panel.
    QQuickView* shown() {
        const auto dragged = std::ranges::find_if(
            surface.adopted, [](const QWindow* window) { return window->title() == QLatin1String("Vellumry drag"); });
        const bool isDragging = dragged != surface.adopted.end() && (*dragged)->isVisible();
        return qobject_cast<QQuickView*>(isDragging ? *dragged : surface.adopted.first());
    }

    /// The program's menu on an ordinary day.
    std::vector<ActionMenuItem> programMenu() {
        StatusMenuState state;
        state.clipCount = store.clips().size();
        state.isStackActive = true;
        state.stackItems = 3;
        state.canCheckForUpdates = true;
        state.update = PendingUpdate{QStringLiteral("1.4.0"), PendingUpdate::State::ready};
        StatusMenuActions actions;
        actions.toggleStack = actions.toggleScreenshots = actions.openSettings = [] {};
        return statusMenu(state, actions);
    }

    /// What of the texts is the user's: it may be cut.
    QStringList ofClips() {
        QStringList found;
        for (const ClipRef& clip : store.clips())
            found << clip->title.toString() << clip->sourceAppName.value_or(QString());
        return found;
    }

    void draw(const QString& name, const std::function<void()>& arrange) {
        target.trusted = name != QLatin1String("no-keys");
        if (name == QLatin1String("empty"))
            awaited(store.clearHistory(false));
        panel.show();
        for (const ClipRef& clip : store.clips()) {
            if (clip->kind == ClipKind::image && !clip->imageText)
                awaited(
                    store.setImageText(clip->id, QStringLiteral("Evening over the hills\nTrail 4 · 7.2 km\n"), true));
        }
        arrange();
        QQuickView* const view = shown();
        view->setOpacity(1);
        // A desk to lie on, as the picture has no window beneath.
        view->setColor(views.isDark() ? QColor(0x2b, 0x33, 0x3d) : QColor(0xb9, 0xc6, 0xd2));
        // Pictures and sizes come from other threads.
        eventually([] { return false; }, 300);
        const QString file = m_folder + QLatin1Char('/') + name + QStringLiteral(".png");
        // A window that grows as it is laid out has its size by the next picture.
        (void)view->grabWindow();
        QCoreApplication::processEvents();
        if (!view->grabWindow().save(file))
            std::fprintf(stderr, "cannot write %s\n", qUtf8Printable(file));
        for (const QString& trouble : textsThatDoNotFit(*view->contentItem(), ofClips())) {
            if (!name.startsWith(QLatin1String("menu")) || !trouble.startsWith(QLatin1String("over another")))
                std::fprintf(stderr, "%s: %s\n", qUtf8Printable(name), qUtf8Printable(trouble));
        }
        drop();
        panel.hide();
    }

    PanelController::Hooks hooks() {
        PanelController::Hooks hooks;
        hooks.position = [](const QString&) { return std::nullopt; };
        hooks.setPosition = [](std::optional<placement::Fractions>, const QString&) {};
        hooks.openPanelKeys = [] { return localised("⌃⌘V"); };
        hooks.showToast = [](const ToastMessage&) {};
        hooks.preview.images = &codec;
        hooks.dragSource = &source;
        hooks.statusMenu = [this] { return programMenu(); };
        return hooks;
    }

    QString m_folder;
    FakeImageCodec codec;
    FakeDragSource source;
    FakePanelSurface surface;
    ViewEngine views;
    PanelController panel{store, *engine, pasteboard, surface, views, hooks()};
};

} // namespace

} // namespace vellumry

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    vellumry::drawEmojiInColour();
    vellumry::installCatalogue();
    QCommandLineParser parser;
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("where the pictures go"));
    parser.addPositionalArgument(QStringLiteral("states"), QStringLiteral("which of them"), QStringLiteral("[state…]"));
    const QCommandLineOption dark(QStringLiteral("dark"));
    const QCommandLineOption rtl(QStringLiteral("rtl"));
    const QCommandLineOption textScale(QStringLiteral("text-scale"), QString(), QStringLiteral("factor"),
                                       QStringLiteral("1"));
    parser.addOptions({dark, rtl, textScale});
    parser.process(application);
    const QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        parser.showHelp(2);
    vellumry::Gallery gallery(words.first());
    gallery.setAppearance(parser.isSet(dark) ? vellumry::ViewEngine::Appearance::dark
                                             : vellumry::ViewEngine::Appearance::light);
    gallery.setTextScale(parser.value(textScale).toDouble());
    if (parser.isSet(rtl))
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    gallery.fill();
    gallery.drawAll(words.mid(1));
    return 0;
}
