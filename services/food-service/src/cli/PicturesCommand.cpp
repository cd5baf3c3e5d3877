#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "db/ConnectionPool.h"
#include "db/FoodStore.h"
#include "db/Schema.h"
#include "db/Sqlite.h"
#include "picture/PngWriter.h"
#include "picture/PortionPictures.h"

#include <array>
#include <cairo.h>
#include <fstream>
#include <iostream>

namespace foodservice {
namespace {

struct SheetFood
{
    const char *caption;
    const char *food;
    const char *portion;
};

// Everyday foods in the measures people count them in, for looking at the pictures together.
constexpr std::array<SheetFood, 40> sheetFoods = {{
    {"banana", "Bananas, raw", "1 medium (7\" to 7-7/8\" long)"},
    {"small banana", "Bananas, raw", "1 small (6\" to 6-7/8\" long)"},
    {"apple", "Apples, raw, with skin", "1 medium (3\" dia)"},
    {"orange", "Oranges, raw, all commercial varieties", "1 large (3-1/16\" dia)"},
    {"pear", "Pears, raw", "1 medium"},
    {"peach", "Peaches, raw", "1 medium (2-2/3\" dia)"},
    {"grapes", "Grapes, red or green (European type, such as Thompson seedless), raw", "1 cup"},
    {"strawberries", "Strawberries, raw", "1 cup, whole"},
    {"watermelon", "Watermelon, raw", "1 cup, diced"},
    {"avocado", "Avocados, raw, all commercial varieties", "1 cup, sliced"},
    {"white bread", "Bread, white, commercially prepared (includes soft bread crumbs)", "1 slice, large"},
    {"bagel", "Bagels, plain, enriched, with calcium propionate (includes onion, poppy, sesame)",
     "1 medium bagel (3-1/2\" to 4\" dia)"},
    {"rice", "Rice, white, long-grain, regular, cooked", "1 cup"},
    {"spaghetti", "Spaghetti, cooked, enriched, without added salt", "1 cup"},
    {"oats", "Cereals, oats, regular and quick, not fortified, dry", "1/3 cup"},
    {"corn flakes", "Cereals ready-to-eat, KELLOGG, KELLOGG'S Corn Flakes", "1 cup (1 NLEA serving)"},
    {"milk", "Milk, whole, 3.25% milkfat, with added vitamin D", "1 cup"},
    {"orange juice", "Orange juice, raw", "1 cup"},
    {"coffee", "Coffee, brewed from grounds, prepared with tap water", "1 cup (8 fl oz)"},
    {"cola, large", "Carbonated beverage, cola, contains caffeine", "1 cup large 32 fl oz size"},
    {"yogurt", "Yogurt, plain, whole milk, 8 grams protein per 8 ounce", "1 cup (8 fl oz)"},
    {"cheddar", "Cheese, cheddar", "1 slice (1 oz)"},
    {"egg", "Egg, whole, cooked, hard-boiled", "1 large"},
    {"butter", "Butter, salted", "1 tbsp"},
    {"peanut butter", "Peanut butter, smooth style, with salt", "2 tbsp"},
    {"honey", "Honey", "1 tbsp"},
    {"sugar", "Sugars, granulated", "1 tsp"},
    {"chicken nuggets", "McDONALD'S, Chicken McNUGGETS", "6 pieces 3.4 oz"},
    {"tuna", "Fish, tuna, light, canned in water, drained solids", "1 cup, solid or chunks"},
    {"steak",
     "Beef, short loin, porterhouse steak, separable lean only, trimmed to 1/4\" fat, USDA choice, cooked, "
     "broiled",
     "1 piece, cooked, excluding refuse"},
    {"carrot", "Carrots, raw", "1 medium"},
    {"broccoli", "Broccoli, raw", "1 cup chopped"},
    {"tomato", "Tomatoes, red, ripe, raw, year round average", "1 medium whole (2-3/5\" dia)"},
    {"black beans", "Beans, black, mature seeds, cooked, boiled, without salt", "1 cup"},
    {"cookie", "Cookies, chocolate chip, commercially prepared, regular, higher fat, enriched",
     "1 cookie, big (3-1/2\" - 4\" dia)"},
    {"chocolate cake", "Cake, chocolate, commercially prepared with chocolate frosting, in-store bakery",
     "1 piece (1/12 of a cake)"},
    {"milk chocolate", "Candies, milk chocolate", "1 bar (1.55 oz)"},
    {"pizza", "PIZZA HUT 12\" Cheese Pizza, Hand-Tossed Crust", "1 slice"},
    {"hamburger", "Fast foods, hamburger; single, regular patty; plain", "1 item"},
    {"french fries", "Fast foods, potato, french fried in vegetable oil", "1 medium"},
}};

constexpr int columns = 8;
constexpr int thumbnail = 200;
constexpr int gap = 12;
constexpr int caption = 26;

std::int64_t portionId(Connection &db, const SheetFood &entry)
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

    const int rows = (static_cast<int>(sheetFoods.size()) + columns - 1) / columns;
    const Surface sheet(cairo_image_surface_create(CAIRO_FORMAT_RGB24, columns * (thumbnail + gap) + gap,
                                                   rows * (thumbnail + caption + gap) + gap),
                        cairo_surface_destroy);
    cairo_t *cr = cairo_create(sheet.get());
    cairo_set_source_rgb(cr, 1, 1, 1);
    cairo_paint(cr);
    cairo_select_font_face(cr, "Liberation Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cr, 15);
    for (std::size_t i = 0; i < sheetFoods.size(); ++i) {
        const auto row = store.portionPicture(portionId(db, sheetFoods[i]));
        const double x = gap + static_cast<double>(i % columns) * (thumbnail + gap);
        const double y = gap + static_cast<double>(i / columns) * (thumbnail + caption + gap);
        const Surface picture = pictures.draw(*row, thumbnail);
        cairo_set_source_surface(cr, picture.get(), x, y);
        cairo_paint(cr);
        cairo_text_extents_t extents;
        cairo_text_extents(cr, sheetFoods[i].caption, &extents);
        cairo_move_to(cr, x + (thumbnail - extents.x_advance) / 2, y + thumbnail + 18);
        cairo_set_source_rgb(cr, 0.3, 0.3, 0.3);
        cairo_show_text(cr, sheetFoods[i].caption);
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
    std::cout << "wrote the contact sheet of " << sheetFoods.size() << " foods to " << output << '\n';
    return 0;
}

} // namespace foodservice
