// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/gnome/ShellKeyInjector.h"

#include <QDBusMetaType>
#include <QList>

namespace vellumry {

void ShellKeyInjector::press(const std::vector<Modifier>& modifiers, quint32 evdevCode) {
    QList<uint> codes;
    for (const Modifier& modifier : modifiers)
        codes.append(modifier.evdevCode);
    codes.append(evdevCode);
    m_link->tell(QStringLiteral("PressKeys"), {QVariant::fromValue(codes)});
}

} // namespace vellumry
