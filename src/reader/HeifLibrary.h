// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <libheif/heif.h>
#include <optional>

namespace vellumry {

/// The functions of libheif that HEIC pictures are opened with. Loaded at run time: a system without it has every other
/// kind of picture. One thread.
struct HeifLibrary {
    decltype(&heif_init) init = nullptr;
    decltype(&heif_context_alloc) allocate = nullptr;
    decltype(&heif_context_free) free = nullptr;
    decltype(&heif_context_set_max_decoding_threads) setMaxThreads = nullptr;
    decltype(&heif_context_read_from_memory_without_copy) readFromMemory = nullptr;
    decltype(&heif_context_get_primary_image_handle) primaryImage = nullptr;
    decltype(&heif_image_handle_release) releaseHandle = nullptr;
    decltype(&heif_image_handle_get_ispe_width) storedWidth = nullptr;
    decltype(&heif_image_handle_get_ispe_height) storedHeight = nullptr;
    decltype(&heif_image_handle_has_alpha_channel) hasAlpha = nullptr;
    decltype(&heif_image_handle_get_list_of_metadata_block_IDs) listMetadata = nullptr;
    decltype(&heif_image_handle_get_metadata_size) metadataSize = nullptr;
    decltype(&heif_image_handle_get_metadata) metadata = nullptr;
    decltype(&heif_decoding_options_alloc) allocateOptions = nullptr;
    decltype(&heif_decoding_options_free) freeOptions = nullptr;
    decltype(&heif_decode_image) decode = nullptr;
    decltype(&heif_image_release) releaseImage = nullptr;
    decltype(&heif_image_get_width) width = nullptr;
    decltype(&heif_image_get_height) height = nullptr;
    decltype(&heif_image_get_plane_readonly) plane = nullptr;

    /// Nothing when the system has no libheif, or one that lacks a function. It stays loaded: opening it before
    /// the process is sealed can open it again behind that.
    [[nodiscard]] static std::optional<HeifLibrary> open();
};

} // namespace vellumry
