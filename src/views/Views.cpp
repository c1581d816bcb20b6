// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/Views.h"

#include "foundation/Localisation.h"
#include "views/ViewEngine.h"

#include <QQmlEngine>

namespace vellumry {

Views::Views(const ViewEngine& engine)
    : m_engine(&engine) {
    connect(m_engine, &ViewEngine::darkChanged, this, &Views::darkChanged);
}

Views* Views::create(QQmlEngine* engine, QJSEngine*) {
    return new Views(*qobject_cast<ViewEngine*>(engine->parent()));
}

bool Views::isDark() const {
    return m_engine->isDark();
}

QString Views::words(const QString& key) const {
    return localised(key.toUtf8().constData());
}

} // namespace vellumry
