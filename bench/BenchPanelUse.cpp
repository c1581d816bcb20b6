// SPDX-License-Identifier: GPL-3.0-or-later

// What the panel costs over a day: `bench_panel_use`. The whole list scrolled through, a large picture chosen, opened
// and closed a thousand times, a thousand clips looked at; and what memory that leaves behind. Drawn without a display.

#include "Measure.h"
#include "PanelStage.h"
#include "foundation/Date.h"
#include "linux/reader/ReaderImageCodec.h"
#include "support/Awaited.h"

#include <QBuffer>
#include <QCoroTask>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QQuickItem>
#include <QRandomGenerator>
#include <algorithm>
#include <cstdio>

#include <malloc.h>

namespace vellumry::bench {

namespace {

constexpr int rounds = 20;
constexpr int uses = 1'000;
constexpr int firstUses = 50;
constexpr QSize screen(3840, 2160);
// Milliseconds.
constexpr double oneFrame = 16;
constexpr double ofPreview = 60;
constexpr double atOneGo = 8;
/// Megabytes that the pages of a heap may differ by.
constexpr double noGrowth = 0.5;

/// Megabytes that this process has written to and that no other process shares.
double ownMemory() {
    (void)malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("Private_Dirty:"))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    }
    return 0;
}

/// A screen full of windows with text, as a PNG.
QByteArray largePicture() {
    QImage image(screen, QImage::Format_RGB32);
    image.fill(QColor(32, 74, 135));
    QPainter painter(&image);
    QRandomGenerator chance(7);
    for (int y = 20; y < screen.height(); y += 22) {
        painter.setPen(QColor::fromHsv(chance.bounded(360), 120, 230));
        QString text;
        for (int i = 0; i < 300; ++i)
            text += chance.bounded(6) == 0 ? u' ' : QChar(u'a' + chance.bounded(26));
        painter.drawText(10, y, text);
    }
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

class UsedPanel : public PanelStage {
public:
    using PanelStage::PanelStage;

    void measure() {
        std::printf("%zu clips\n", m_store->clips().size());
        makeWindow();
        show();
        scroll();
        lookAtPicture();
        growing("opened and closed", [this](int) {
            m_panel->hide();
            QCoreApplication::processEvents();
            show();
        });
        growing("clips looked at", [this](int use) {
            m_panel->model().selectOnly(m_store->clips()[std::size_t(use) % m_store->clips().size()]->id);
            paint();
        });
    }

private:
    /// The whole list, a row at a time at first and then a page at a time.
    void scroll() {
        auto* list = m_view->rootObject()->findChild<QQuickItem*>(QStringLiteral("clips"));
        const double end = list->property("contentHeight").toDouble() - list->height();
        constexpr double row = 44;
        constexpr int rows = 500;
        std::vector<double> frames;
        double place = 0;
        while (place < end) {
            place += place < rows * row ? row : list->height();
            frames.push_back(milliseconds([&] {
                list->setProperty("contentY", std::min(place, end));
                paint();
            }));
        }
        std::printf("  the whole list scrolled through in %zu frames\n", frames.size());
        print("a frame of scrolling", frames, oneFrame);
        list->setProperty("contentY", 0);
    }

    void lookAtPicture() {
        ClipDraft other;
        other.title = other.searchText = QStringLiteral("a short text");
        const ClipRef shortText = QCoro::waitFor(m_store->add(std::move(other), currentDate()));
        ClipDraft copied;
        copied.kind = ClipKind::image;
        copied.title = QStringLiteral("a screen");
        copied.payload.items = {{{{QStringLiteral("public.png"), largePicture()}}, std::nullopt}};
        const ClipRef picture = QCoro::waitFor(m_store->add(std::move(copied), currentDate()));
        auto* preview = m_view->rootObject()->property("preview").value<PreviewModel*>();
        std::vector<double> painted;
        std::vector<double> busy;
        for (int round = 0; round < rounds; ++round) {
            m_panel->model().selectOnly(shortText->id);
            paint();
            double longest = 0;
            painted.push_back(milliseconds([&] {
                longest = milliseconds([&] { m_panel->model().selectOnly(picture->id); });
                while (preview->pictureWidth() == 0)
                    longest = std::max(longest, milliseconds([] { QCoreApplication::processEvents(); }));
                longest = std::max(longest, milliseconds([this] { paint(); }));
            }));
            busy.push_back(longest);
        }
        print("a picture of 3840 x 2160: chosen, until painted", painted, ofPreview);
        print("the same: main thread at one go", busy, atOneGo);
    }

    void growing(const char* what, const std::function<void(int use)>& use) {
        // What is deleted later is, as in the program's own event loop.
        const auto once = [&use](int count) {
            use(count);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        };
        for (int count = 0; count < firstUses; ++count)
            once(count);
        const double before = ownMemory();
        for (int count = firstUses; count < uses; ++count)
            once(count);
        const double after = ownMemory();
        std::printf("  %d %s: %.1f MB after the first %d, %.1f MB after all, %+.1f (limit %+.1f)\n", uses, what, before,
                    firstUses, after, after - before, noGrowth);
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
    vellumry::ReaderImageCodec codec(QCoreApplication::applicationDirPath() + QStringLiteral("/../vellumry-reader"));
    vellumry::bench::UsedPanel(10'000, &codec).measure();
    return 0;
}
