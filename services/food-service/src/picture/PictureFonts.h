#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

using cairo_font_face_t = struct _cairo_font_face;
using FT_Library = struct FT_LibraryRec_ *;
using FT_Face = struct FT_FaceRec_ *;

namespace foodservice {

// A colour emoji as the font draws it: premultiplied ARGB rows, Cairo's ARGB32 layout.
struct EmojiImage
{
    int width = 0;
    int height = 0;
    int stride = 0;
    std::vector<std::uint8_t> pixels;
    // The box of the pixels that show the food, without the font's clear margins.
    int inkLeft = 0;
    int inkTop = 0;
    int inkRight = 0;
    int inkBottom = 0;
};

// The fonts of the portion pictures, found through fontconfig: Liberation Sans for the
// label, drawn by Cairo, and Noto Color Emoji for the food, rendered with FreeType.
// Shared by every thread that draws; throws std::runtime_error when a font is missing.
class PictureFonts
{
public:
    // Checks that the emoji font has each of `glyphs`.
    explicit PictureFonts(const std::vector<char32_t> &glyphs);

    [[nodiscard]] cairo_font_face_t *regular() const { return m_regular.get(); }
    [[nodiscard]] cairo_font_face_t *bold() const { return m_bold.get(); }
    // The glyph at the font's own size, rendered on first use and kept.
    [[nodiscard]] std::shared_ptr<const EmojiImage> emoji(char32_t glyph) const;

private:
    using FontFace = std::unique_ptr<cairo_font_face_t, void (*)(cairo_font_face_t *)>;

    std::unique_ptr<FT_LibraryRec_, int (*)(FT_Library)> m_library;
    std::unique_ptr<FT_FaceRec_, int (*)(FT_Face)> m_emojiFace;
    FontFace m_regular;
    FontFace m_bold;
    mutable std::mutex m_emojiLock;
    mutable std::map<char32_t, std::shared_ptr<const EmojiImage>> m_emoji;
};

} // namespace foodservice
