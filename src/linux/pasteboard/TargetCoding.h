// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// How the bytes of a representation look under each name that the desktop has for it: text comes in several encodings,
/// the rest as it is. Pure; any thread.
namespace vellumry::targetcoding {

/// The bytes of a uniform type from what an owner gave for `target` with the property type `propertyType`. Text becomes
/// UTF-8 without a NUL at its end, the page address of Mozilla's programs likewise; anything else is handed back as it
/// came. Nothing for text in an encoding that is not understood.
[[nodiscard]] std::optional<QByteArray> decode(const QString& uniformType, const QString& target,
                                               const QString& propertyType, const QByteArray& bytes);

/// The bytes to serve for `target`; nothing when the representation cannot be put that way (STRING is Latin-1,
/// ICCCM 2.6.2).
[[nodiscard]] std::optional<QByteArray> encode(const QString& uniformType, const QString& target,
                                               const QByteArray& bytes);

/// True for what programs compress and render only when they are asked for it, which takes seconds for large ones:
/// pictures, documents, the forms of a text.
[[nodiscard]] bool isMadeOnDemand(const QString& target);

/// The property type that goes with `encode`: the target itself, but for TEXT, which names the encoding chosen.
[[nodiscard]] QString propertyTypeOf(const QString& target);

} // namespace vellumry::targetcoding
