// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ScreenshotSaving.h"

#include "foundation/Localisation.h"

#include <QPointer>

namespace vellumry {

namespace {

const QString preference = QStringLiteral("saveNewScreenshots");

} // namespace

ScreenshotSaving::ScreenshotSaving(ScreenshotImporter& importer, UserDefaults& defaults)
    : m_importer(&importer)
    , m_defaults(&defaults) {}

QCoro::Task<void> ScreenshotSaving::startIfWanted() {
    if (!m_defaults->boolean(preference))
        co_return;
    auto starting = setSaving(true);
    co_await starting;
}

QCoro::Task<bool> ScreenshotSaving::setSaving(bool isWanted) {
    m_isWanted = isWanted;
    const quint64 request = ++m_requestCount;
    if (!isWanted) {
        m_defaults->setObject(preference, false);
        m_importer->stop();
        co_return true;
    }
    const QPointer<ScreenshotSaving> self(this);
    auto starting = m_importer->start();
    const bool isWatching = co_await starting;
    if (!self || request != m_requestCount)
        co_return false;
    m_isWanted = isWatching;
    m_defaults->setObject(preference, isWatching);
    co_return isWatching;
}

QCoro::Task<void> ScreenshotSaving::follow() {
    const bool isWanted = m_defaults->boolean(preference);
    if (isWanted == m_isWanted)
        co_return;
    auto switching = setSaving(isWanted);
    co_await switching;
}

QCoro::Task<void> ScreenshotSaving::toggle() {
    if (m_defaults->boolean(preference)) {
        auto stopping = setSaving(false);
        co_await stopping;
        co_return;
    }
    const QPointer<ScreenshotSaving> self(this);
    auto starting = setSaving(true);
    const quint64 request = m_requestCount;
    const bool isWatching = co_await starting;
    // Of the last press alone it is told what came of it.
    if (!self || request != m_requestCount || !onToast)
        co_return;
    if (isWatching)
        onToast({QStringLiteral("camera.viewfinder"), localised("New screenshots will be saved in Vellumry"),
                 ToastMessage::Tone::success});
    else
        onToast({QStringLiteral("folder.badge.questionmark"),
                 localised("Vellumry can't open your screenshots folder. Allow it in Privacy & Security → Files and "
                           "Folders"),
                 ToastMessage::Tone::warning});
}

} // namespace vellumry
