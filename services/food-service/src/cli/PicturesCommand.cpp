#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "db/ConnectionPool.h"
#include "db/FoodStore.h"
#include "db/Schema.h"
#include "db/Sqlite.h"
#include "picture/EverydayPortions.h"
#include "picture/PngWriter.h"
#include "picture/PortionPictures.h"

#include <cairo.h>
#include <fstream>
#include <iostream>

namespace foodservice {
namespace {

constexpr int columns = 8;
constexpr int thumbnail = 200;
constexpr int gap = 12;
constexpr int caption = 26;

std::int64_t portionId(Connection &db, const EverydayPortion &entry)
{
    auto query = db.prepare("SELECT p.id FROM portion p JOIN food f ON f.id = p.food_id"
                            " WHERE f.description = ? AND p.description = ?");
    query.bind(1, std::string(entry.food)).bind(2, std::string(entry.portion));
    if (!query.step())
        throw std::runtime_error(std::string("not in the database: ") + entry.food + ", " + entry.portion);
    return query.integer(0);
}

// The thumbnails of the everyday foods in a grid, each captioned with its food.
void writeContactSheet(const std::string &database, const std::string &output)
{
    Connection db(database, Connection::Mode::ReadOnly);
    checkSchema(db);
    ConnectionPool pool(database);
    const FoodStore store(pool);
    const PortionPictures pictures;

    const int rows = (static_cast<int>(everydayPortions.size()) + columns - 1) / columns;
    const Surface sheet(cairo_image_surface_create(CAIRO_FORMAT_RGB24, columns * (thumbnail + gap) + gap,
                                                   rows * (thumbnail + caption + gap) + gap),
                        cairo_surface_destroy);
    cairo_t *cr = cairo_create(sheet.get());
    cairo_set_source_rgb(cr, 1, 1, 1);
    cairo_paint(cr);
    cairo_select_font_face(cr, "Liberation Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cr, 15);
    for (std::size_t i = 0; i < everydayPortions.size(); ++i) {
        const auto row = store.portionPicture(portionId(db, everydayPortions[i]));
        const double x = gap + static_cast<double>(i % columns) * (thumbnail + gap);
        const double y = gap + static_cast<double>(i / columns) * (thumbnail + caption + gap);
        const Surface picture = pictures.draw(*row, thumbnail);
        cairo_set_source_surface(cr, picture.get(), x, y);
        cairo_paint(cr);
        cairo_text_extents_t extents;
        cairo_text_extents(cr, everydayPortions[i].caption, &extents);
        cairo_move_to(cr, x + (thumbnail - extents.x_advance) / 2, y + thumbnail + 18);
        cairo_set_source_rgb(cr, 0.3, 0.3, 0.3);
        cairo_show_text(cr, everydayPortions[i].caption);
    }
    cairo_destroy(cr);
    std::ofstream file(output, std::ios::binary | std::ios::trunc);
    file << encodePng(sheet.get());
    if (!file.flush())
        throw std::runtime_error("cannot write " + output);
}

} // namespace

int runPictures(const CommandLine &options)
{
    const std::string output = options.required("contact-sheet");
    writeContactSheet(options.required("db"), output);
    std::cout << "wrote the contact sheet of " << everydayPortions.size() << " foods to " << output << '\n';
    return 0;
}

} // namespace foodservice
