// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <tesseract/capi.h>

namespace vellumry {

/// The functions of libtesseract that text is read with. Loaded at run time: a reader that only makes thumbnails starts
/// in half the time without it, and a system without it has everything else. One thread.
struct TesseractLibrary {
    decltype(&TessBaseAPICreate) create = nullptr;
    decltype(&TessBaseAPIDelete) destroy = nullptr;
    decltype(&TessBaseAPIInit2) init = nullptr;
    decltype(&TessBaseAPISetVariable) setVariable = nullptr;
    decltype(&TessBaseAPISetPageSegMode) setPageSegMode = nullptr;
    decltype(&TessBaseAPISetImage) setImage = nullptr;
    decltype(&TessBaseAPISetSourceResolution) setSourceResolution = nullptr;
    decltype(&TessBaseAPIRecognize) recognize = nullptr;
    decltype(&TessMonitorCreate) createMonitor = nullptr;
    decltype(&TessMonitorDelete) deleteMonitor = nullptr;
    decltype(&TessMonitorSetDeadlineMSecs) setDeadline = nullptr;
    decltype(&TessBaseAPIGetIterator) resultIterator = nullptr;
    decltype(&TessBaseAPIClear) clear = nullptr;
    decltype(&TessResultIteratorDelete) deleteResultIterator = nullptr;
    decltype(&TessResultIteratorGetPageIteratorConst) pageIterator = nullptr;
    decltype(&TessResultIteratorNext) next = nullptr;
    decltype(&TessResultIteratorGetUTF8Text) utf8Text = nullptr;
    decltype(&TessResultIteratorConfidence) confidence = nullptr;
    decltype(&TessPageIteratorBoundingBox) boundingBox = nullptr;
    decltype(&TessDeleteText) deleteText = nullptr;

    /// Null when the system has no libtesseract 5, or one that lacks a function. It stays loaded.
    [[nodiscard]] static std::unique_ptr<const TesseractLibrary> load();
};

} // namespace vellumry
