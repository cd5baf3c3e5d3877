#include "picture/PngWriter.h"

#include <cairo.h>
#include <png.h>
#include <stdexcept>
#include <vector>
#include <zlib.h>

namespace foodservice {
namespace {

void append(png_structp png, png_bytep data, png_size_t length)
{
    static_cast<std::string *>(png_get_io_ptr(png))->append(reinterpret_cast<const char *>(data), length);
}

void flush(png_structp) {}

[[noreturn]] void fail(png_structp, png_const_charp message)
{
    throw std::runtime_error(std::string("PNG encoding failed: ") + message);
}

void warn(png_structp, png_const_charp) {}

} // namespace

std::string encodePng(cairo_surface_t *surface)
{
    cairo_surface_flush(surface);
    if (cairo_image_surface_get_format(surface) != CAIRO_FORMAT_RGB24)
        throw std::runtime_error("PNG encoding needs an RGB24 image surface");
    const int width = cairo_image_surface_get_width(surface);
    const int height = cairo_image_surface_get_height(surface);
    const int stride = cairo_image_surface_get_stride(surface);
    const unsigned char *pixels = cairo_image_surface_get_data(surface);

    std::string png;
    png.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) / 4);
    png_structp writer = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, warn);
    png_infop info = writer == nullptr ? nullptr : png_create_info_struct(writer);
    if (info == nullptr) {
        png_destroy_write_struct(&writer, nullptr);
        throw std::runtime_error("PNG encoding failed: out of memory");
    }
    try {
        png_set_write_fn(writer, &png, append, flush);
        png_set_IHDR(writer, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height), 8,
                     PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                     PNG_FILTER_TYPE_DEFAULT);
        // The fastest level, unfiltered: on these pictures, mostly flat colour, zlib finds the
        // repeats itself, and that is both faster and smaller than filtering first.
        png_set_compression_level(writer, Z_BEST_SPEED);
        png_set_filter(writer, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
        png_set_compression_buffer_size(writer, 1U << 16U);
        png_write_info(writer, info);
        // Cairo's RGB24 is one 32-bit word per pixel: blue, green, red, unused in memory order.
        // Converting a row here is quicker than libpng's filler and byte-order transforms.
        std::vector<png_byte> row(static_cast<std::size_t>(width) * 3);
        for (int y = 0; y < height; ++y) {
            const unsigned char *pixel = pixels + static_cast<std::ptrdiff_t>(y) * stride;
            for (std::size_t x = 0; x < static_cast<std::size_t>(width); ++x, pixel += 4) {
                row[x * 3] = pixel[2];
                row[x * 3 + 1] = pixel[1];
                row[x * 3 + 2] = pixel[0];
            }
            png_write_row(writer, row.data());
        }
        png_write_end(writer, info);
    } catch (...) {
        png_destroy_write_struct(&writer, &info);
        throw;
    }
    png_destroy_write_struct(&writer, &info);
    return png;
}

} // namespace foodservice
