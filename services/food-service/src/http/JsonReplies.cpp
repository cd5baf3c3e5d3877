#include "http/JsonReplies.h"

namespace foodservice {
namespace {

// Each import of the data set carries this number (SR release 24).
constexpr int databaseImport = 24;

nlohmann::json gramsUnit()
{
    return {{"type", "mass"},  {"is_base", 1}, {"id", 1}, {"to_base_conversion_rate", 1},
            {"name", "grams"}, {"unit", "g"}};
}

} // namespace

nlohmann::json foodJson(const FoodRecord &food)
{
    return {{"id", food.id},
            {"description", food.description},
            {"food_brand", food.brand},
            {"is_generic_item", food.isGeneric() ? 1 : 0}};
}

nlohmann::json portionJson(const PortionRow &portion)
{
    return {{"order_num", portion.orderNum},
            {"id", portion.id},
            {"unit", "grams"},
            {"database_import", databaseImport},
            {"size", portion.size},
            {"is_default", portion.orderNum == 1},
            {"image_name", portion.picture.empty()
                               ? std::string()
                               : "portion-" + std::to_string(portion.id) + "-" + portion.picture + ".png"},
            {"description", portion.description},
            {"convertible_unit", gramsUnit()}};
}

nlohmann::json nutrientJson(const NutrientAmount &nutrient, double grams)
{
    return {{"nutrient", {{"name", nutrient.name}}},
            {"amount", {{"value", nutrient.per100g * grams / 100}, {"units", nutrient.units}}}};
}

std::string errorBody(const std::string &message, const std::string &parameter)
{
    nlohmann::json body = {{"error", message}};
    if (!parameter.empty())
        body["parameter"] = parameter;
    return serialise(body);
}

std::string serialise(const nlohmann::json &reply)
{
    return reply.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace foodservice
