// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/look/SaidLook.h"

#include <QDBusMessage>
#include <QMap>
#include <QObject>
#include <QVariantMap>
#include <functional>
#include <memory>

namespace vellumry {

class PortalIntroduction;

/// The settings that the desktop's portal hands out (org.freedesktop.portal.Settings, version 1): the keys of
/// org.freedesktop.appearance, and where those are silent what GNOME says under its own names. The portal is not
/// started for it; it is asked when `introduction` has told it our name, and so is one that comes later. Nothing waits
/// for it. Main thread.
class PortalSettings : public QObject {
    Q_OBJECT

public:
    /// By name space, then by key.
    using Values = QMap<QString, QVariantMap>;

    /// `onChanged` is called when `said` is different.
    PortalSettings(std::shared_ptr<PortalIntroduction> introduction, std::function<void()> onChanged);
    ~PortalSettings() override;

    [[nodiscard]] const SaidLook& said() const { return m_said; }
    /// What such values say. The text's scale is left out where the display server has applied it already. Pure.
    [[nodiscard]] static SaidLook lookOf(const Values& values);

private Q_SLOTS:
    void settingChanged(const QDBusMessage& message);

private:
    void ask();
    void take(const Values& values);

    std::shared_ptr<PortalIntroduction> m_introduction;
    std::function<void()> m_onChanged;
    Values m_values;
    SaidLook m_said;
};

} // namespace vellumry
