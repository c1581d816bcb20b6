// SPDX-License-Identifier: GPL-3.0-or-later

// Draws the panel in each of its states, in the language of the environment, without a display: `panel_gallery FOLDER
// [--dark] [--rtl] [STATE…]`, all states without one. QT_SCALE_FACTOR sets the scale. Tells of texts that do not fit.

#include "foundation/Localisation.h"
#include "gallery/CutTexts.h"
#include "panel/PanelController.h"
#include "shell/StatusMenu.h"
#include "support/FakeImageCodec.h"
#include "support/FakePanelSurface.h"
#include "support/PasteWorld.h"

#include <QBuffer>
#include <QCommandLineParser>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QQuickView>
#include <algorithm>
#include <cmath>
#include <cstdio>

namespace vellumry {

namespace {

/// A picture of our own: hills behind each other under an evening sky.
QImage hills(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor(0x27, 0x3a, 0x6b));
    sky.setColorAt(0.6, QColor(0xe7, 0x8d, 0x72));
    sky.setColorAt(1, QColor(0xf7, 0xd0, 0x8a));
    painter.fillRect(image.rect(), sky);
    for (int hill = 0; hill < 4; ++hill) {
        QPainterPath outline(QPointF(0, size.height()));
        for (int x = 0; x <= size.width(); x += 4) {
            const double wave = std::sin(x * (0.004 + hill * 0.0016) + hill * 2.1) * (0.09 - hill * 0.012);
            outline.lineTo(x, size.height() * (0.55 + hill * 0.12 + wave));
        }
        outline.lineTo(size.width(), size.height());
        painter.fillPath(outline, QColor::fromHsl(228 + hill * 6, 70, 90 - hill * 20));
    }
    return image;
}

QByteArray png(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

class Gallery : public PasteWorld {
public:
    explicit Gallery(QString folder)
        : m_folder(std::move(folder)) {
        now = currentDate() - 20;
        surface.blends = true;
        target.trusted = true;
    }

    void setAppearance(ViewEngine::Appearance appearance) { views.setAppearance(appearance); }

    /// What somebody copies in a day; the last one is the newest.
    void fill() {
        pinned(drafts::text(QStringLiteral("Kind regards,\nJoan Eldridge")), "Mail");
        from(drafts::text(QStringLiteral("Meeting moved to Thursday, 14:30, room Curie")), "Calendar");
        from(link("https://www.freedesktop.org/wiki/Specifications/clipboards-spec/?from=history#primary"), "Firefox");
        from(code(), "Konsole");
        from(photo(), "Image Viewer");
        from(colour("#3f7fd9"), "Inkscape");
        from(drafts::secret(QStringLiteral("correct horse battery staple")), "KeePassXC");
        from(drafts::files({QStringLiteral("/home/joan/Letters/offer.odt"),
                            QStringLiteral("/home/joan/Pictures/roof.jpg"),
                            QStringLiteral("/home/joan/Letters/old draft.odt")}),
             "Files");
        fileStatuses = {{QStringLiteral("/home/joan/Pictures/roof.jpg"),
                         FileStatus::moved(QStringLiteral("/home/joan/Archive/2026/roof.jpg"))},
                        {QStringLiteral("/home/joan/Letters/old draft.odt"), FileStatus::missing()}};
        from(rich(), "LibreOffice Writer");
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
    static ClipDraft link(const char* address) {
        ClipDraft draft = drafts::text(QString::fromUtf8(address));
        draft.kind = ClipKind::link;
        return draft;
    }
    static ClipDraft colour(const char* text) {
        ClipDraft draft = drafts::text(QString::fromUtf8(text));
        draft.kind = ClipKind::color;
        return draft;
    }
    static ClipDraft rich() {
        ClipDraft draft = drafts::text(QStringLiteral("Minutes of the house meeting\n\n1. Roof: the offer of 12,400 is "
                                                      "taken.\n2. Bicycles: a second stand in the yard.\n3. Heating: "
                                                      "read the meters by the end of the month."));
        draft.kind = ClipKind::richText;
        draft.payload.items.front().representations[uniformtype::html] =
            "<h2>Minutes of the house meeting</h2><ol><li><b>Roof:</b> the offer of <u>12,400</u> is taken. "
            "<span style='color:#b3261e'>The crane comes on Tuesday.</span></li><li><b>Bicycles:</b> a second stand in "
            "the yard, see <a href='https://example.org'>the plan</a>.</li><li><b>Heating:</b> <i>read the meters</i> "
            "by the end of the month and enter them as <code>flat; reading</code>.</li></ol><p><s>Garden: "
            "postponed.</s></p>";
        return draft;
    }
    static ClipDraft code() {
        ClipDraft draft = drafts::text(QStringLiteral(
            "#include <iostream>\n\n/// Greets as often as it is told.\nint main(int argc, char** argv) {\n\tconst int "
            "times = argc > 1 ? std::atoi(argv[1]) : 1;\n\tfor (int round = 0; round < times; ++round)\n\t\tstd::cout "
            "<< \"hello\\n\";\n\treturn 0;\n}"));
        draft.sourceBundleID = QStringLiteral("org.kde.konsole");
        return draft;
    }
    ClipDraft photo() {
        const QImage image = hills(QSize(1280, 720));
        codec.picture =
            png(image.scaledToWidth(static_cast<int>(660 * qGuiApp->devicePixelRatio()), Qt::SmoothTransformation));
        ClipDraft draft = drafts::image(png(image));
        draft.title = QStringLiteral("Image 1280 × 720");
        draft.searchText = draft.title;
        draft.thumbnail = png(image.scaledToWidth(160, Qt::SmoothTransformation));
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
        auto* view = qobject_cast<QQuickView*>(surface.adopted.first());
        view->setOpacity(1);
        // A desk to lie on, as the picture has no window beneath.
        view->setColor(views.isDark() ? QColor(0x2b, 0x33, 0x3d) : QColor(0xb9, 0xc6, 0xd2));
        // Pictures and sizes come from other threads.
        eventually([] { return false; }, 300);
        const QString file = m_folder + QLatin1Char('/') + name + QStringLiteral(".png");
        if (!view->grabWindow().save(file))
            std::fprintf(stderr, "cannot write %s\n", qUtf8Printable(file));
        for (const QString& trouble : textsThatDoNotFit(*view->contentItem(), ofClips())) {
            if (!name.startsWith(QLatin1String("menu")) || !trouble.startsWith(QLatin1String("over another")))
                std::fprintf(stderr, "%s: %s\n", qUtf8Printable(name), qUtf8Printable(trouble));
        }
        panel.hide();
    }

    PanelController::Hooks hooks() {
        PanelController::Hooks hooks;
        hooks.position = [](const QString&) { return std::nullopt; };
        hooks.setPosition = [](std::optional<placement::Fractions>, const QString&) {};
        hooks.openPanelKeys = [] { return localised("⌃⌘V"); };
        hooks.showToast = [](const ToastMessage&) {};
        hooks.preview.images = &codec;
        hooks.statusMenu = [this] { return programMenu(); };
        return hooks;
    }

    QString m_folder;
    FakeImageCodec codec;
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
    vellumry::installCatalogue();
    QCommandLineParser parser;
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("where the pictures go"));
    parser.addPositionalArgument(QStringLiteral("states"), QStringLiteral("which of them"), QStringLiteral("[state…]"));
    const QCommandLineOption dark(QStringLiteral("dark"));
    const QCommandLineOption rtl(QStringLiteral("rtl"));
    parser.addOptions({dark, rtl});
    parser.process(application);
    const QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        parser.showHelp(2);
    vellumry::Gallery gallery(words.first());
    gallery.setAppearance(parser.isSet(dark) ? vellumry::ViewEngine::Appearance::dark
                                             : vellumry::ViewEngine::Appearance::light);
    if (parser.isSet(rtl))
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    gallery.fill();
    gallery.drawAll(words.mid(1));
    return 0;
}
