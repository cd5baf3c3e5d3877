#include "picture/PictureFonts.h"

#include <algorithm>
#include <cairo-ft.h>
#include <cstring>
#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include <stdexcept>
#include <string>
#include FT_FREETYPE_H

namespace foodservice {
namespace {

using Pattern = std::unique_ptr<FcPattern, void (*)(FcPattern *)>;

// The font fontconfig picks for `name`, which must be of `family`.
Pattern matchFont(const char *name, const char *family, const char *package)
{
    const auto missing = std::runtime_error(std::string("font ") + name + " not found; install " + package);
    const Pattern wanted(FcNameParse(reinterpret_cast<const FcChar8 *>(name)), FcPatternDestroy);
    if (!wanted)
        throw missing;
    FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    Pattern found(FcFontMatch(nullptr, wanted.get(), &result), FcPatternDestroy);
    FcChar8 *foundFamily = nullptr;
    if (!found || FcPatternGetString(found.get(), FC_FAMILY, 0, &foundFamily) != FcResultMatch ||
        std::strcmp(reinterpret_cast<const char *>(foundFamily), family) != 0)
        throw missing;
    return found;
}

std::string fileOf(const Pattern &font)
{
    FcChar8 *file = nullptr;
    if (FcPatternGetString(font.get(), FC_FILE, 0, &file) != FcResultMatch)
        throw std::runtime_error("fontconfig gave a font without a file");
    return reinterpret_cast<const char *>(file);
}

FT_Library startFreeType()
{
    FT_Library library = nullptr;
    if (FT_Init_FreeType(&library) != 0)
        throw std::runtime_error("cannot start FreeType");
    return library;
}

FT_Face openEmojiFace(FT_Library library)
{
    const std::string file =
        fileOf(matchFont("Noto Color Emoji", "Noto Color Emoji", "fonts-noto-color-emoji"));
    FT_Face face = nullptr;
    if (FT_New_Face(library, file.c_str(), 0, &face) != 0)
        throw std::runtime_error("cannot open the font " + file);
    // A colour bitmap font: its one strike is the size every glyph is scaled from.
    if (FT_HAS_COLOR(face) == 0 || face->num_fixed_sizes < 1 || FT_Select_Size(face, 0) != 0) {
        FT_Done_Face(face);
        throw std::runtime_error(file + " has no colour bitmaps");
    }
    return face;
}

cairo_font_face_t *textFace(const char *name)
{
    return cairo_ft_font_face_create_for_pattern(
        matchFont(name, "Liberation Sans", "fonts-liberation2").get());
}

std::string codePoint(char32_t glyph)
{
    constexpr const char *digits = "0123456789ABCDEF";
    std::string hex;
    for (auto value = static_cast<std::uint32_t>(glyph); value != 0 || hex.size() < 4; value >>= 4U)
        hex.insert(hex.begin(), digits[value & 0xFU]);
    return "U+" + hex;
}

// The bounds of the pixels opaque enough to see; faint anti-aliased fringes do not count.
void findInk(EmojiImage &image)
{
    constexpr std::uint8_t seen = 48;
    image.inkLeft = image.width;
    image.inkTop = image.height;
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            const auto alpha = image.pixels[static_cast<std::size_t>(y * image.stride + x * 4 + 3)];
            if (alpha < seen)
                continue;
            image.inkLeft = std::min(image.inkLeft, x);
            image.inkRight = std::max(image.inkRight, x + 1);
            image.inkTop = std::min(image.inkTop, y);
            image.inkBottom = std::max(image.inkBottom, y + 1);
        }
    }
    if (image.inkRight <= image.inkLeft)
        throw std::runtime_error("an emoji draws nothing");
}

} // namespace

PictureFonts::PictureFonts(const std::vector<char32_t> &glyphs)
    : m_library(startFreeType(), FT_Done_FreeType), m_emojiFace(openEmojiFace(m_library.get()), FT_Done_Face),
      m_regular(textFace("Liberation Sans:regular"), cairo_font_face_destroy),
      m_bold(textFace("Liberation Sans:bold"), cairo_font_face_destroy)
{
    for (const char32_t glyph : glyphs) {
        if (FT_Get_Char_Index(m_emojiFace.get(), glyph) == 0)
            throw std::runtime_error("Noto Color Emoji lacks the food picture glyph " + codePoint(glyph));
    }
}

std::shared_ptr<const EmojiImage> PictureFonts::emoji(char32_t glyph) const
{
    const std::lock_guard lock(m_emojiLock);
    auto &kept = m_emoji[glyph];
    if (kept)
        return kept;
    FT_Face face = m_emojiFace.get();
    const FT_UInt index = FT_Get_Char_Index(face, glyph);
    if (index == 0 || FT_Load_Glyph(face, index, FT_LOAD_COLOR) != 0 ||
        face->glyph->bitmap.pixel_mode != FT_PIXEL_MODE_BGRA)
        throw std::runtime_error("cannot render the emoji " + codePoint(glyph));
    const FT_Bitmap &bitmap = face->glyph->bitmap;
    auto image = std::make_shared<EmojiImage>();
    image->width = static_cast<int>(bitmap.width);
    image->height = static_cast<int>(bitmap.rows);
    image->stride = image->width * 4;
    image->pixels.resize(static_cast<std::size_t>(image->stride) * bitmap.rows);
    // FreeType's BGRA is premultiplied, as Cairo's ARGB32 is on a little-endian machine.
    for (unsigned row = 0; row < bitmap.rows; ++row)
        std::memcpy(image->pixels.data() +
                        static_cast<std::size_t>(row) * static_cast<std::size_t>(image->stride),
                    bitmap.buffer + static_cast<std::ptrdiff_t>(row) * bitmap.pitch,
                    static_cast<std::size_t>(image->stride));
    findInk(*image);
    kept = image;
    return kept;
}

} // namespace foodservice
