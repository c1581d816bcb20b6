// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files/FolderWatching.h"

#include <QObject>
#include <QVariantList>
#include <functional>
#include <memory>

namespace vellumry {

class UserDefaults;

/// Most settings are read where they are used. A few have been acted upon long before: shortcuts are registered, a
/// folder is watched, windows have their look. This calls what has to be done again when one of those changes, whoever
/// changed it. Main thread.
class SettingsWatch : public QObject {
    Q_OBJECT

public:
    /// What is done when one of a group has another value than at the last look.
    struct Reactions {
        std::function<void()> shortcuts{};
        std::function<void()> appearance{};
        std::function<void()> screenshots{};
        std::function<void()> anything{}; ///< at each look, behind the others
    };

    /// What the settings say now is taken as done. `defaults` must outlive this.
    SettingsWatch(const UserDefaults& defaults, Reactions reactions);

    /// Looks whenever something happens in `folder`, where the settings file lies. Without it only `look` finds out.
    void start(FolderWatching& watching, const QString& folder);
    /// Compares and reacts.
    void look();
    /// What the settings say of the shortcuts now has been done already.
    void acknowledge();

private:
    struct Group {
        QStringList keys;
        std::function<void()> reaction;
        QVariantList values;
    };

    [[nodiscard]] QVariantList valuesOf(const Group& group) const;

    const UserDefaults* m_defaults;
    std::vector<Group> m_groups;
    std::function<void()> m_anything;
    std::unique_ptr<FolderWatch> m_watch;
};

} // namespace vellumry
