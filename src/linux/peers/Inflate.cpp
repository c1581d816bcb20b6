// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/peers/Inflate.h"

#include <algorithm>
#include <limits>
#include <memory>
// Input that is not written to.
#define ZLIB_CONST
#include <zlib.h>

namespace vellumry {

namespace {

constexpr qsizetype firstRoom = 16384;

struct End {
    void operator()(z_stream* stream) const { inflateEnd(stream); }
};

} // namespace

std::expected<QByteArray, InflateFailure> inflated(QByteArrayView stream, qsizetype most) {
    z_stream state{};
    if (stream.size() > std::numeric_limits<uInt>::max() || inflateInit(&state) != Z_OK)
        return std::unexpected(InflateFailure::damaged);
    const std::unique_ptr<z_stream, End> end(&state);
    state.next_in = reinterpret_cast<const Bytef*>(stream.data());
    state.avail_in = static_cast<uInt>(stream.size());
    QByteArray bytes;
    qsizetype size = 0;
    int result = Z_OK;
    while (result == Z_OK) {
        if (size == bytes.size()) {
            if (size > most)
                return std::unexpected(InflateFailure::tooLarge);
            // One byte more than is allowed tells that there is more.
            bytes.resize(std::min(most + 1, std::max(firstRoom, 2 * size)));
        }
        state.next_out = reinterpret_cast<Bytef*>(bytes.data()) + size;
        state.avail_out = static_cast<uInt>(bytes.size() - size);
        result = inflate(&state, Z_NO_FLUSH);
        size = bytes.size() - static_cast<qsizetype>(state.avail_out);
    }
    if (result != Z_STREAM_END)
        return std::unexpected(InflateFailure::damaged);
    if (size > most)
        return std::unexpected(InflateFailure::tooLarge);
    bytes.truncate(size);
    return bytes;
}

} // namespace vellumry
