// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Corpus.h"
#include "foundation/UserDefaults.h"
#include "history/clips/ClipStore.h"
#include "history/file/MemoryKeyStore.h"
#include "panel/PanelController.h"
#include "paste/PasteEngine.h"
#include "support/FakePanelSurface.h"
#include "support/FakePasteTarget.h"
#include "support/FakePasteboard.h"

#include <QQuickView>
#include <QTemporaryDir>
#include <memory>
#include <vector>

namespace vellumry::bench {

/// A figure of many rounds beside what it must reach: "  what   median 1.2 ms   most 3.4 ms   limit 16 ms". Without a
/// limit when that is 0.
void print(const char* what, const std::vector<double>& values, double limit = 0);

/// The panel over a history of the corpus, drawn without a display by the renderer of the program.
class PanelStage {
public:
    /// `images` may be null; else it outlives this.
    explicit PanelStage(std::size_t count, ImageCodec* images = nullptr);

protected:
    /// Makes the window; nothing is shown yet.
    void makeWindow();
    void show();
    void untilPainted();
    /// Draws the window anew and waits until that is done.
    void paint();

    FakePasteboard m_pasteboard;
    FakePasteTarget m_target;
    FakePanelSurface m_surface;
    ViewEngine m_views;
    std::unique_ptr<ClipStore> m_store;
    std::unique_ptr<PasteEngine> m_engine;
    std::unique_ptr<PanelController> m_panel;
    QQuickView* m_view = nullptr;

private:
    void fill(std::size_t count);

    QTemporaryDir m_folder;
    MemoryKeyStore m_keyStore;
    UserDefaults m_defaults;
    bool m_isPainted = false;
};

} // namespace vellumry::bench
