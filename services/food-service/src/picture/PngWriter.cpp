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
    unsigned char *pixels = cairo_image_surface_get_data(surface);
    std::vector<png_bytep> rows(static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y)
        rows[static_cast<std::size_t>(y)] = pixels + static_cast<std::ptrdiff_t>(y) * stride;

    std::string png;
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
        png_set_compression_level(writer, Z_BEST_SPEED);
        png_set_filter(writer, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
        png_set_compression_strategy(writer, Z_RLE);
        png_write_info(writer, info);
        // Cairo's RGB24 is one 32-bit word per pixel: blue, green, red, unused in memory order.
        png_set_filler(writer, 0, PNG_FILLER_AFTER);
        png_set_bgr(writer);
        png_write_image(writer, rows.data());
        png_write_end(writer, info);
    } catch (...) {
        png_destroy_write_struct(&writer, &info);
        throw;
    }
    png_destroy_write_struct(&writer, &info);
    return png;
}

} // namespace foodservice
