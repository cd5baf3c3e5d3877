#pragma once

#include <array>

namespace foodservice {

struct EverydayPortion
{
    const char *caption;
    const char *food;
    const char *portion;
};

// Everyday foods in the measures people count them in: the contact sheet shows their pictures
// together, and the tests check them against each other.
inline constexpr std::array<EverydayPortion, 40> everydayPortions = {{
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

} // namespace foodservice
