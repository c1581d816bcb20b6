// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/screenshots/ScreenshotImporter.h"
#include "foundation/UserDefaults.h"
#include "paste/ToastMessage.h"

#include <QCoroTask>
#include <QObject>
#include <functional>

namespace vellumry {

/// The switch "Save new screenshots": joins the preference, the importer and the words the user is told. Main thread;
/// what is handed to it must outlive it.
class ScreenshotSaving : public QObject {
public:
    ScreenshotSaving(ScreenshotImporter& importer, UserDefaults& defaults);

    /// At launch: begins to watch where the preference says so; a folder that is refused turns the preference off
    /// without a word.
    QCoro::Task<void> startIfWanted();
    /// Switches saving on or off and stores what came of it. False only when it was to be switched on and no folder
    /// could be opened.
    QCoro::Task<bool> setSaving(bool isWanted);
    /// The preference was changed in the file: does what it says now.
    QCoro::Task<void> follow();
    /// The menu's variant: the other way round from the preference, and what came of switching it on is shown.
    QCoro::Task<void> toggle();

    std::function<void(const ToastMessage& message)> onToast;

private:
    ScreenshotImporter* m_importer;
    UserDefaults* m_defaults;
    bool m_isWanted = false;    ///< what was asked for last, though it may still be on its way
    quint64 m_requestCount = 0; ///< an answer to an earlier request must not undo a later one
};

} // namespace vellumry
