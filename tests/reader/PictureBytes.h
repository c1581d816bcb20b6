// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>

/// Picture files for tests, made by Qt or by hand.
namespace vellumry::picturebytes {

[[nodiscard]] QByteArray encode(const QImage& image, const char* format);
/// Left half red, right half blue.
[[nodiscard]] QImage twoColours(int width, int height, QImage::Format format = QImage::Format_RGB32);

/// `word`, of the letters E, H, L, O and T, in a font of our own, 28 pixels high: no font need be installed, nor a
/// display be there.
[[nodiscard]] QImage drawnWord(const QByteArray& word, QRgb ground, QRgb ink);

/// A PNG chunk with its length and checksum.
[[nodiscard]] QByteArray pngChunk(const QByteArray& name, const QByteArray& content);
/// A PNG of 1 x 1 pixels with `chunks` behind its header.
[[nodiscard]] QByteArray pngWith(const QByteArray& chunks);
/// A PNG header that promises this size, and no pixels.
[[nodiscard]] QByteArray pngHeader(quint32 width, quint32 height);
/// `jpeg` with a segment behind its start.
[[nodiscard]] QByteArray jpegWith(const QByteArray& jpeg, quint8 marker, const QByteArray& content);

/// A JPEG of 16 x 8 pixels in the four inks of print, its left half red, its right half blue.
[[nodiscard]] QByteArray jpegForPrint();

/// Animations of these frames, which are all of one size.
[[nodiscard]] QByteArray animatedPng(const QList<QImage>& frames);
[[nodiscard]] QByteArray animatedWebp(const QList<QImage>& frames);

/// A TIFF-like EXIF block with this user comment, its coding in front.
[[nodiscard]] QByteArray exif(const QByteArray& comment, bool isBigEndian);
/// The orientation of EXIF, 1 to 8, alone in a block.
[[nodiscard]] QByteArray exifOrientation(quint16 orientation);

} // namespace vellumry::picturebytes
