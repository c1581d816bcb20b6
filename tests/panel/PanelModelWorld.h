// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panel/PanelModel.h"
#include "support/PasteWorld.h"

#include <gtest/gtest.h>

namespace vellumry {

/// A panel model over a world in memory; the toasts it shows and the times it closes are noted.
class PanelModelWorld : public ::testing::Test, public PasteWorld {
protected:
    PanelModelWorld() {
        model.onClose = [this] { ++closed; };
        model.onToast = [this](const ToastMessage& toast) { toasts.push_back(toast); };
    }

    /// Adds text clips, the first the oldest; the ids in the order of the list, newest first.
    std::vector<QUuid> addTexts(int count) {
        std::vector<QUuid> ids;
        for (int index = 1; index <= count; ++index)
            ids.insert(ids.begin(), addText(QByteArray("text " + QByteArray::number(index)).constData())->id);
        return ids;
    }
    void pin(const QUuid& id) { awaited(store.setPinned(id, true, ++now)); }

    [[nodiscard]] static QStringList titles(const std::vector<ClipRef>& clips) {
        QStringList result;
        for (const auto& clip : clips)
            result.append(clip->title.toString());
        return result;
    }
    [[nodiscard]] QStringList sectionIDs() const {
        QStringList ids;
        for (const auto& section : model.sections())
            ids.append(section.id);
        return ids;
    }
    [[nodiscard]] QStringList sectionTitles() const {
        QStringList result;
        for (const auto& section : model.sections())
            result.append(section.title);
        return result;
    }
    [[nodiscard]] static ToastMessage toast(const char* symbol, const char* text, ToastMessage::Tone tone) {
        return {QString::fromUtf8(symbol), QString::fromUtf8(text), tone};
    }

    int closed = 0;
    std::vector<ToastMessage> toasts;
    PanelModelCalendar calendar{[this] { return now; }, [this] { return zone; },
                                [] { return QLocale(QStringLiteral("en_US")); }};
    QTimeZone zone = QTimeZone::utc();
    std::unique_ptr<PanelModel> owned = std::make_unique<PanelModel>(store, *engine, calendar);
    PanelModel& model = *owned;
};

} // namespace vellumry
