// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/HeifLibrary.h"

#include "reader/LibrarySymbols.h"

namespace vellumry {

std::optional<HeifLibrary> HeifLibrary::open() {
    void* handle = dlopen("libheif.so.1", RTLD_NOW | RTLD_LOCAL);
    if (!handle)
        return std::nullopt;
    HeifLibrary library;
    LibrarySymbols symbols(handle);
    symbols.find(library.init, "heif_init");
    symbols.find(library.allocate, "heif_context_alloc");
    symbols.find(library.free, "heif_context_free");
    symbols.find(library.setMaxThreads, "heif_context_set_max_decoding_threads");
    symbols.find(library.readFromMemory, "heif_context_read_from_memory_without_copy");
    symbols.find(library.primaryImage, "heif_context_get_primary_image_handle");
    symbols.find(library.releaseHandle, "heif_image_handle_release");
    symbols.find(library.storedWidth, "heif_image_handle_get_ispe_width");
    symbols.find(library.storedHeight, "heif_image_handle_get_ispe_height");
    symbols.find(library.hasAlpha, "heif_image_handle_has_alpha_channel");
    symbols.find(library.listMetadata, "heif_image_handle_get_list_of_metadata_block_IDs");
    symbols.find(library.metadataSize, "heif_image_handle_get_metadata_size");
    symbols.find(library.metadata, "heif_image_handle_get_metadata");
    symbols.find(library.allocateOptions, "heif_decoding_options_alloc");
    symbols.find(library.freeOptions, "heif_decoding_options_free");
    symbols.find(library.decode, "heif_decode_image");
    symbols.find(library.releaseImage, "heif_image_release");
    symbols.find(library.width, "heif_image_get_width");
    symbols.find(library.height, "heif_image_get_height");
    symbols.find(library.plane, "heif_image_get_plane_readonly");
    // Loads the decoders where they are files of their own.
    if (!symbols.isComplete() || library.init(nullptr).code != heif_error_Ok)
        return std::nullopt;
    return library;
}

} // namespace vellumry
