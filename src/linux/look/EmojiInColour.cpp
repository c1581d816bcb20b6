// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/look/EmojiInColour.h"

#include <atomic>
#include <dlfcn.h>
#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include <memory>
#include <unicode/uchar.h>
#include FT_FREETYPE_H

namespace vellumry {

namespace {

std::atomic<bool> isWanted = false;

/// A font with colours that has the first of the faces.
bool hasFontOfColouredEmoji() {
    constexpr FcChar32 grinningFace = 0x1F600;
    const std::unique_ptr<FcCharSet, decltype(&FcCharSetDestroy)> faces(FcCharSetCreate(), &FcCharSetDestroy);
    const std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)> wanted(FcPatternCreate(), &FcPatternDestroy);
    const std::unique_ptr<FcObjectSet, decltype(&FcObjectSetDestroy)> asked(FcObjectSetBuild(FC_FAMILY, nullptr),
                                                                            &FcObjectSetDestroy);
    FcCharSetAddChar(faces.get(), grinningFace);
    FcPatternAddCharSet(wanted.get(), FC_CHARSET, faces.get());
    FcPatternAddBool(wanted.get(), FC_COLOR, FcTrue);
    const std::unique_ptr<FcFontSet, decltype(&FcFontSetDestroy)> found(FcFontList(nullptr, wanted.get(), asked.get()),
                                                                        &FcFontSetDestroy);
    return found != nullptr && found->nfont > 0;
}

/// Nothing below has a colour by default, and all of the text in most scripts is below.
constexpr FT_ULong firstEmoji = 0x231A;

bool isLeftToAnother(FT_Face face, FT_ULong character) {
    if (character < firstEmoji || !isWanted || FT_HAS_COLOR(face) ||
        u_hasBinaryProperty(static_cast<UChar32>(character), UCHAR_EMOJI_PRESENTATION) == 0)
        return false;
    static const bool isThere = hasFontOfColouredEmoji();
    return isThere;
}

} // namespace

void drawEmojiInColour() {
    isWanted = true;
}

} // namespace vellumry

/// Stands before FreeType's own, for Qt's libraries too: the linker exports from a program what its libraries ask for.
extern "C" __attribute__((visibility("default"))) FT_UInt FT_Get_Char_Index(FT_Face face, FT_ULong character) {
    static const auto next = reinterpret_cast<decltype(&FT_Get_Char_Index)>(dlsym(RTLD_NEXT, "FT_Get_Char_Index"));
    if (next == nullptr || vellumry::isLeftToAnother(face, character))
        return 0;
    return next(face, character);
}
