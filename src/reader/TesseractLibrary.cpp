// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/TesseractLibrary.h"

#include "reader/LibrarySymbols.h"

namespace vellumry {

std::unique_ptr<const TesseractLibrary> TesseractLibrary::load() {
    void* handle = dlopen("libtesseract.so.5", RTLD_NOW | RTLD_LOCAL);
    if (!handle)
        return nullptr;
    auto library = std::make_unique<TesseractLibrary>();
    LibrarySymbols symbols(handle);
    symbols.find(library->create, "TessBaseAPICreate");
    symbols.find(library->destroy, "TessBaseAPIDelete");
    symbols.find(library->init, "TessBaseAPIInit2");
    symbols.find(library->setVariable, "TessBaseAPISetVariable");
    symbols.find(library->setPageSegMode, "TessBaseAPISetPageSegMode");
    symbols.find(library->setImage, "TessBaseAPISetImage");
    symbols.find(library->setSourceResolution, "TessBaseAPISetSourceResolution");
    symbols.find(library->recognize, "TessBaseAPIRecognize");
    symbols.find(library->createMonitor, "TessMonitorCreate");
    symbols.find(library->deleteMonitor, "TessMonitorDelete");
    symbols.find(library->setDeadline, "TessMonitorSetDeadlineMSecs");
    symbols.find(library->resultIterator, "TessBaseAPIGetIterator");
    symbols.find(library->clear, "TessBaseAPIClear");
    symbols.find(library->deleteResultIterator, "TessResultIteratorDelete");
    symbols.find(library->pageIterator, "TessResultIteratorGetPageIteratorConst");
    symbols.find(library->next, "TessResultIteratorNext");
    symbols.find(library->utf8Text, "TessResultIteratorGetUTF8Text");
    symbols.find(library->confidence, "TessResultIteratorConfidence");
    symbols.find(library->boundingBox, "TessPageIteratorBoundingBox");
    symbols.find(library->deleteText, "TessDeleteText");
    return symbols.isComplete() ? std::move(library) : nullptr;
}

} // namespace vellumry
