#include "picture/PngEncoder.h"

#include <stdexcept>
#include <zlib.h>

namespace foodservice {
namespace {

void appendBigEndian(std::string &out, std::uint32_t value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        out += static_cast<char>((value >> static_cast<unsigned>(shift)) & 0xFFU);
}

void appendChunk(std::string &out, const char *type, const std::string &data)
{
    appendBigEndian(out, static_cast<std::uint32_t>(data.size()));
    const std::string typed = std::string(type) + data;
    out += typed;
    const auto crc = crc32(0, reinterpret_cast<const Bytef *>(typed.data()), static_cast<uInt>(typed.size()));
    appendBigEndian(out, static_cast<std::uint32_t>(crc));
}

} // namespace

std::string encodePng(const Canvas &canvas)
{
    const auto width = static_cast<std::size_t>(canvas.width());
    const auto height = static_cast<std::size_t>(canvas.height());
    const auto &pixels = canvas.pixels();
    // Each row starts with filter type 0 (none).
    std::string raw;
    raw.reserve(height * (width * 3 + 1));
    for (std::size_t y = 0; y < height; ++y) {
        raw += '\0';
        raw.append(reinterpret_cast<const char *>(pixels.data() + y * width * 3), width * 3);
    }
    uLongf compressedSize = compressBound(static_cast<uLong>(raw.size()));
    std::string compressed(compressedSize, '\0');
    if (compress2(reinterpret_cast<Bytef *>(compressed.data()), &compressedSize,
                  reinterpret_cast<const Bytef *>(raw.data()), static_cast<uLong>(raw.size()), 6) != Z_OK)
        throw std::runtime_error("PNG compression failed");
    compressed.resize(compressedSize);

    std::string header;
    appendBigEndian(header, static_cast<std::uint32_t>(width));
    appendBigEndian(header, static_cast<std::uint32_t>(height));
    header += '\x08';               // bit depth
    header += '\x02';               // colour type RGB
    header += std::string(3, '\0'); // compression, filter, interlace
    std::string png = "\x89PNG\r\n\x1a\n";
    appendChunk(png, "IHDR", header);
    appendChunk(png, "IDAT", compressed);
    appendChunk(png, "IEND", {});
    return png;
}

} // namespace foodservice
