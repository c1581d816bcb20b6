// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/ComposedKeys.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QWindow>
#include <array>
#include <utility>
#include <xkbcommon/xkbcommon-compose.h>
#include <xkbcommon/xkbcommon.h>

namespace vellumry {

namespace {

/// Longer than what any table of the X servers ends in.
constexpr std::size_t longestText = 256;

bool takesText(QObject& field) {
    QInputMethodQueryEvent query(Qt::ImEnabled);
    QCoreApplication::sendEvent(&field, &query);
    return query.value(Qt::ImEnabled).toBool();
}

} // namespace

ComposedKeys::ComposedKeys(QByteArray locale)
    : m_locale(std::move(locale)) {}

ComposedKeys::~ComposedKeys() = default;

void ComposedKeys::Release::operator()(xkb_compose_state* state) const {
    xkb_compose_state_unref(state);
}

bool ComposedKeys::standInFor(const QByteArray& inputMethod) {
    return inputMethod.isEmpty() || inputMethod == "compose" || inputMethod == "xim";
}

void ComposedKeys::readTable() {
    if (std::exchange(m_isRead, true))
        return;
    xkb_context* const context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
    if (!context)
        return;
    // The state keeps the table, and the table the context.
    if (xkb_compose_table* const table =
            xkb_compose_table_new_from_locale(context, m_locale.constData(), XKB_COMPOSE_COMPILE_NO_FLAGS)) {
        m_state.reset(xkb_compose_state_new(table, XKB_COMPOSE_STATE_NO_FLAGS));
        xkb_compose_table_unref(table);
    }
    xkb_context_unref(context);
}

void ComposedKeys::forget() {
    if (m_state)
        xkb_compose_state_reset(m_state.get());
    m_field.clear();
}

bool ComposedKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWindowType())
        return false;
    // The window hands it to its field; what is filtered here has passed all keys before it.
    QObject* const field = static_cast<QWindow*>(watched)->focusObject();
    if (!field || !takesText(*field)) {
        forget();
        return false;
    }
    return takes(*field, static_cast<QKeyEvent*>(event)->nativeVirtualKey());
}

bool ComposedKeys::takes(QObject& field, quint32 symbol) {
    readTable();
    if (!m_state)
        return false;
    if (m_field != &field)
        forget();
    m_field = &field;
    // Shift and its like do not break a sequence.
    if (xkb_compose_state_feed(m_state.get(), symbol) == XKB_COMPOSE_FEED_IGNORED)
        return false;
    switch (xkb_compose_state_get_status(m_state.get())) {
    case XKB_COMPOSE_COMPOSING:
        return true;
    case XKB_COMPOSE_COMPOSED: {
        std::array<char, longestText> text{};
        xkb_compose_state_get_utf8(m_state.get(), text.data(), text.size());
        xkb_compose_state_reset(m_state.get());
        QInputMethodEvent typed;
        typed.setCommitString(QString::fromUtf8(text.data()));
        QCoreApplication::sendEvent(&field, &typed);
        return true;
    }
    case XKB_COMPOSE_CANCELLED:
        xkb_compose_state_reset(m_state.get());
        return false;
    case XKB_COMPOSE_NOTHING:
        break;
    }
    return false;
}

} // namespace vellumry
