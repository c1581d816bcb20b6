// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <glib.h>

/// Lists of strings as GLib's D-Bus has them.
namespace vellumry::variantstrings {

/// A floating value.
[[nodiscard]] inline GVariant* of(const QStringList& strings) {
    GVariantBuilder builder;
    g_variant_builder_init(&builder, G_VARIANT_TYPE("as"));
    for (const QString& string : strings)
        g_variant_builder_add(&builder, "s", string.toUtf8().constData());
    return g_variant_builder_end(&builder);
}

/// The list at `place` of a tuple.
[[nodiscard]] inline QStringList in(GVariant* values, gsize place) {
    QStringList strings;
    GVariant* list = g_variant_get_child_value(values, place);
    for (gsize i = 0; i < g_variant_n_children(list); ++i) {
        const char* string = nullptr;
        g_variant_get_child(list, i, "&s", &string);
        strings.append(QString::fromUtf8(string));
    }
    g_variant_unref(list);
    return strings;
}

} // namespace vellumry::variantstrings
