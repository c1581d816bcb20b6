// SPDX-License-Identifier: GPL-3.0-or-later

// What the panel itself costs: `bench_panel [clips…]`, 5,000 and 100,000 without a number. Drawn without a display, by
// the renderer of the program. The time until the desktop has shown what was painted is not ours and not in it.

#include "Corpus.h"
#include "Measure.h"
#include "foundation/Date.h"
#include "foundation/UserDefaults.h"
#include "history/clips/ClipStore.h"
#include "history/file/ClipDatabase.h"
#include "history/file/ClipRows.h"
#include "history/file/HistoryFile.h"
#include "history/file/MemoryKeyStore.h"
#include "panel/PanelController.h"
#include "paste/PasteEngine.h"
#include "support/Awaited.h"
#include "support/FakePanelSurface.h"
#include "support/FakePasteTarget.h"
#include "support/FakePasteboard.h"

#include <QCoroTask>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

namespace vellumry::bench {

namespace {

constexpr int rounds = 30;
constexpr RetentionPolicy unlimited{std::nullopt, qint64{1} << 40, qint64{1} << 60};

void print(const char* what, const std::vector<double>& values) {
    std::printf("  %-46s median %7.2f ms   most %7.2f ms\n", what, median(values),
                *std::max_element(values.begin(), values.end()));
}

/// The panel over a history of `count` clips.
class LongPanel {
public:
    explicit LongPanel(std::size_t count) {
        fill(count);
        auto database = ClipDatabase::openHistory(m_folder.path(), m_keyStore).value().database;
        m_store = QCoro::waitFor(ClipStore::open(std::move(database), unlimited, false));
        m_engine = std::make_unique<PasteEngine>(*m_store, m_defaults, SystemHooks::of(m_pasteboard, m_target));
        PanelController::Hooks hooks;
        hooks.position = [](const QString&) { return std::nullopt; };
        hooks.setPosition = [](std::optional<placement::Fractions>, const QString&) {};
        hooks.openPanelKeys = [] { return QString(); };
        m_panel = std::make_unique<PanelController>(*m_store, *m_engine, m_pasteboard, m_surface, m_views, hooks);
    }

    void measure() {
        std::printf("%zu clips\n", m_store->clips().size());
        print("window made", {milliseconds([&] { m_panel->warmUp(); })});
        m_view = qobject_cast<QQuickView*>(m_surface.adopted.first());
        QObject::connect(m_view, &QQuickWindow::frameSwapped, m_view, [this] { m_isPainted = true; });
        print("first showing, until painted", {milliseconds([&] { show(); })});
        print("later showings, each with a new clip", measureShowing());
        measureTyping();
        measurePreviews();
    }

private:
    void fill(std::size_t count) {
        Corpus corpus(7);
        const auto crypto = ClipDatabase::openHistory(m_folder.path(), m_keyStore).value().database->crypto();
        SQLiteDatabase file(m_folder.path() + u'/' + historyfile::fileName, SQLiteDatabase::Access::readWrite);
        file.execute("BEGIN");
        for (const ClipRef& clip : corpus.clips(count))
            cliprows::write(file, crypto, *clip, ClipPayload());
        file.execute("COMMIT");
    }

    void untilPainted() {
        runUntil([this] { return m_isPainted; });
    }
    void show() {
        m_isPainted = false;
        m_panel->show();
        untilPainted();
    }
    std::vector<double> measureShowing() {
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round) {
            m_panel->hide();
            QCoreApplication::processEvents();
            ClipDraft copied;
            copied.title = QStringLiteral("copied meanwhile %1").arg(round);
            copied.searchText = copied.title;
            (void)QCoro::waitFor(m_store->add(std::move(copied), currentDate()));
            times.push_back(milliseconds([&] { show(); }));
        }
        return times;
    }

    /// Words letter by letter: what a model without views takes for each letter, and what the whole panel takes. A
    /// model before both finds what nobody has looked at yet, so that neither pays for the other.
    void measureTyping() {
        PanelModel scout(*m_store, *m_engine);
        PanelModel bare(*m_store, *m_engine);
        const auto search = [](PanelModel& model, const QString& text) {
            model.searchTextEdited(text);
            keep(model.sections().size());
        };
        std::vector<double> searches;
        std::vector<double> letters;
        std::vector<double> ours;
        for (const char* word : {"the", "report", "screen", "zebra"}) {
            const QString text = QString::fromLatin1(word);
            for (int length = 1; length <= text.size(); ++length) {
                search(scout, text.left(length));
                searches.push_back(milliseconds([&] { search(bare, text.left(length)); }));
                letters.push_back(milliseconds([&] {
                    m_panel->model().searchTextEdited(text.left(length));
                    m_isPainted = false;
                    m_view->update();
                    untilPainted();
                }));
                ours.push_back(letters.back() - searches.back());
            }
        }
        print("a letter: search, sections, selection", searches);
        print("a letter: all of it, until painted", letters);
        print("a letter: rows, views, painting alone", ours);
    }

    /// From the choice until the preview is painted, and how long the main thread was busy at one go until the text was
    /// there as a whole and counted.
    void measurePreviews() {
        ClipDraft other;
        other.title = other.searchText = QStringLiteral("a short text");
        const ClipRef shortText = QCoro::waitFor(m_store->add(std::move(other), currentDate()));
        ClipDraft copied;
        const QByteArray text =
            QByteArray("All work and no play makes a long text of short lines.\n").repeated(190'000);
        copied.title = QStringLiteral("ten megabytes");
        copied.searchText = QString::fromUtf8(text.left(200'000));
        copied.payload.items = {{{{QStringLiteral("public.utf8-plain-text"), text}}, std::nullopt}};
        const ClipRef longText = QCoro::waitFor(m_store->add(std::move(copied), currentDate()));
        m_panel->model().setQuery({});
        auto* preview = m_view->rootObject()->property("preview").value<PreviewModel*>();
        std::vector<double> painted;
        std::vector<double> whole;
        std::vector<double> busy;
        for (int round = 0; round < rounds; ++round) {
            m_panel->model().selectOnly(shortText->id);
            (void)m_view->grabWindow();
            double longest = 0;
            painted.push_back(milliseconds([&] {
                longest = milliseconds([&] { m_panel->model().selectOnly(longText->id); });
                m_isPainted = false;
                m_view->update();
                untilPainted();
            }));
            const QString count = QString::number(text.size());
            whole.push_back(painted.back() + milliseconds([&] {
                                while (!preview->content().details.contains(count))
                                    longest =
                                        std::max(longest, milliseconds([] { QCoreApplication::processEvents(); }));
                            }));
            busy.push_back(longest);
        }
        print("10 MB of text: chosen, until painted", painted);
        print("10 MB of text: whole and counted", whole);
        print("10 MB of text: main thread at one go", busy);
    }

    QTemporaryDir m_folder;
    MemoryKeyStore m_keyStore;
    FakePasteboard m_pasteboard;
    FakePasteTarget m_target;
    UserDefaults m_defaults;
    FakePanelSurface m_surface;
    ViewEngine m_views;
    std::unique_ptr<ClipStore> m_store;
    std::unique_ptr<PasteEngine> m_engine;
    std::unique_ptr<PanelController> m_panel;
    QQuickView* m_view = nullptr;
    bool m_isPainted = false;
};

} // namespace

} // namespace vellumry::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    std::vector<std::size_t> counts;
    for (int index = 1; index < argc; ++index)
        counts.push_back(QByteArray(argv[index]).toULongLong());
    if (counts.empty())
        counts = {5'000, 100'000};
    for (const std::size_t count : counts)
        vellumry::bench::LongPanel(count).measure();
    return 0;
}
