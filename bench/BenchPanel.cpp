// SPDX-License-Identifier: GPL-3.0-or-later

// What the panel itself costs: `bench_panel [clips…]`, 5,000 and 100,000 without a number. Drawn without a display, by
// the renderer of the program. The time until the desktop has shown what was painted is not ours and not in it.

#include "Measure.h"
#include "PanelStage.h"
#include "foundation/Date.h"
#include "support/Awaited.h"

#include <QCoroTask>
#include <QGuiApplication>
#include <QQuickItem>
#include <algorithm>
#include <cstdio>

namespace vellumry::bench {

namespace {

constexpr int rounds = 30;
// Milliseconds.
constexpr double oneFrame = 16;
constexpr double ofLetter = 20;
constexpr double ofPreview = 60;
constexpr double atOneGo = 8;

class LongPanel : public PanelStage {
public:
    using PanelStage::PanelStage;

    void measure() {
        std::printf("%zu clips\n", m_store->clips().size());
        print("window made", {milliseconds([&] { makeWindow(); })});
        print("first showing, until painted", {milliseconds([&] { show(); })});
        print("later showings, each with a new clip", measureShowing(), oneFrame);
        measureTyping();
        measureLetter();
        measurePreviews();
    }

private:
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
    /// model before both finds what has not been looked at yet, so that neither pays for the other.
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
                    paint();
                }));
                ours.push_back(letters.back() - searches.back());
            }
        }
        print("a letter: search, sections, selection", searches);
        print("a letter: all of it, until painted", letters, ofLetter);
        print("a letter: rows, views, painting alone", ours);
    }

    /// A letter that nearly every clip has: the longest list that a search leaves.
    void measureLetter() {
        std::vector<double> typed;
        std::vector<double> rubbedOut;
        const auto edit = [&](const QString& text) {
            return milliseconds([&] {
                m_panel->model().searchTextEdited(text);
                paint();
            });
        };
        (void)edit(QString());
        for (int round = 0; round < rounds; ++round) {
            typed.push_back(edit(QStringLiteral("e")));
            rubbedOut.push_back(edit(QString()));
        }
        print("a letter that nearly all have, until painted", typed, ofLetter);
        print("the same rubbed out, until painted", rubbedOut, ofLetter);
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
                paint();
            }));
            const QString count = QString::number(text.size());
            whole.push_back(painted.back() + milliseconds([&] {
                                while (!preview->content().details.contains(count))
                                    longest =
                                        std::max(longest, milliseconds([] { QCoreApplication::processEvents(); }));
                            }));
            busy.push_back(longest);
        }
        print("10 MB of text: chosen, until painted", painted, ofPreview);
        print("10 MB of text: whole and counted", whole);
        print("10 MB of text: main thread at one go", busy, atOneGo);
    }
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
