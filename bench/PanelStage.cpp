// SPDX-License-Identifier: GPL-3.0-or-later
#include "PanelStage.h"

#include "Measure.h"
#include "foundation/UserDefaults.h"
#include "history/file/ClipDatabase.h"
#include "history/file/ClipRows.h"
#include "history/file/HistoryFile.h"
#include "paste/PasteEngine.h"
#include "support/Awaited.h"

#include <QCoroTask>
#include <algorithm>
#include <cstdio>

namespace vellumry::bench {

namespace {

constexpr RetentionPolicy unlimited{std::nullopt, qint64{1} << 40, qint64{1} << 60};

} // namespace

void print(const char* what, const std::vector<double>& values, double limit) {
    std::printf("  %-46s median %7.2f ms   most %7.2f ms", what, median(values),
                *std::max_element(values.begin(), values.end()));
    if (limit > 0)
        std::printf("   limit %g ms", limit);
    std::printf("\n");
}

PanelStage::PanelStage(std::size_t count, ImageCodec* images) {
    fill(count);
    auto database = ClipDatabase::openHistory(m_folder.path(), m_keyStore).value().database;
    m_store = QCoro::waitFor(ClipStore::open(std::move(database), unlimited, false));
    m_engine = std::make_unique<PasteEngine>(*m_store, m_defaults, SystemHooks::of(m_pasteboard, m_target));
    PanelController::Hooks hooks;
    hooks.position = [](const QString&) { return std::nullopt; };
    hooks.setPosition = [](std::optional<placement::Fractions>, const QString&) {};
    hooks.openPanelKeys = [] { return QString(); };
    hooks.preview.images = images;
    m_panel = std::make_unique<PanelController>(*m_store, *m_engine, m_pasteboard, m_surface, m_views, hooks);
}

void PanelStage::fill(std::size_t count) {
    Corpus corpus(7);
    const auto crypto = ClipDatabase::openHistory(m_folder.path(), m_keyStore).value().database->crypto();
    SQLiteDatabase file(m_folder.path() + u'/' + historyfile::fileName, SQLiteDatabase::Access::readWrite);
    file.execute("BEGIN");
    for (const ClipRef& clip : corpus.clips(count))
        cliprows::write(file, crypto, *clip, ClipPayload());
    file.execute("COMMIT");
}

void PanelStage::makeWindow() {
    m_panel->warmUp();
    m_view = qobject_cast<QQuickView*>(m_surface.adopted.first());
    QObject::connect(m_view, &QQuickWindow::frameSwapped, m_view, [this] { m_isPainted = true; });
}

void PanelStage::untilPainted() {
    runUntil([this] { return m_isPainted; });
}

void PanelStage::show() {
    m_isPainted = false;
    m_panel->show();
    untilPainted();
}

void PanelStage::paint() {
    m_isPainted = false;
    m_view->update();
    untilPainted();
}

} // namespace vellumry::bench
