#include "http/FoodApi.h"

#include "http/HttpError.h"
#include "http/JsonReplies.h"
#include "http/Parameters.h"
#include "http/QueryString.h"

#include <algorithm>
#include <charconv>
#include <httplib.h>
#include <map>

namespace foodservice {
namespace {

constexpr std::string_view foodPath = "/api/v1/healthcare//food";
constexpr std::string_view imagePath = "/api/v1/healthcare//food_portion_images/";
constexpr std::string_view jsonType = "application/json";
constexpr std::int64_t defaultPage = 50;
constexpr std::int64_t largestPage = 200;
constexpr int fullPictureSize = 600;
constexpr int thumbnailSize = 200;
constexpr int largestPicture = 1024;
constexpr int smallestPicture = 16;
constexpr std::size_t pictureCacheBytes = 64U * 1024U * 1024U;

// A decimal id (a leading minus allowed); nothing for any other text.
std::optional<std::int64_t> parseId(std::string_view text)
{
    std::int64_t id = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
    if (text.empty() || error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return id;
}

[[noreturn]] void notFound(const std::string &what)
{
    throw HttpError(404, what + " not found");
}

// Brands or categories of the matches, most frequent first, then by name.
nlohmann::json labelsByFrequency(const std::map<std::string, int> &counts, std::int64_t offset,
                                 std::int64_t limit)
{
    std::vector<std::pair<std::string, int>> ordered(counts.begin(), counts.end());
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const auto &a, const auto &b) { return a.second > b.second; });
    auto labels = nlohmann::json::array();
    for (auto i = static_cast<std::size_t>(offset);
         i < ordered.size() && labels.size() < static_cast<std::size_t>(limit); ++i)
        labels.push_back({{"label", ordered[i].first}});
    return labels;
}

} // namespace

FoodApi::FoodApi(const Catalog &catalog, const SearchEngine &search, const FoodStore &store,
                 std::string apiKey)
    : m_catalog(catalog), m_search(search), m_store(store), m_apiKey(std::move(apiKey)),
      m_pictureCache(pictureCacheBytes)
{
    m_serialisedFoods.reserve(catalog.foods().size());
    for (const auto &food : catalog.foods())
        m_serialisedFoods.push_back(serialise(foodJson(food)));
}

const std::string &FoodApi::serialisedFood(const FoodRecord &food) const
{
    return m_serialisedFoods[static_cast<std::size_t>(&food - m_catalog.foods().data())];
}

void FoodApi::install(httplib::Server &server) const
{
    server.Get(".*", [this](const httplib::Request &request, httplib::Response &response) {
        handle(request, response);
    });
}

void FoodApi::handle(const httplib::Request &request, httplib::Response &response) const
{
    const std::string_view target = request.target;
    const auto question = target.find('?');
    const auto rawPath = target.substr(0, question);
    const auto query = question == std::string_view::npos ? std::string_view() : target.substr(question + 1);
    try {
        const auto path = percentDecode(rawPath);
        if (!path)
            throw HttpError(400, "malformed percent escape in the path");
        route(*path, query, request, response);
    } catch (const HttpError &error) {
        response.status = error.status();
        response.set_content(errorBody(error.what(), error.parameter()), jsonType.data());
    }
}

void FoodApi::checkKey(const httplib::Request &request) const
{
    const auto header = request.get_header_value("Authorization");
    if (request.get_header_value_count("Authorization") != 1 || header != "Api-Key " + m_apiKey)
        throw HttpError(401, "missing or wrong API key; send \"Authorization: Api-Key <key>\"");
}

void FoodApi::route(std::string_view path, std::string_view query, const httplib::Request &request,
                    httplib::Response &response) const
{
    if (path.starts_with(imagePath)) {
        const auto portionId = parseId(path.substr(imagePath.size()));
        if (!portionId)
            notFound("portion");
        response.set_header("Cache-Control", "max-age=86400");
        response.set_content(portionImage(*portionId, query), "image/png");
        return;
    }
    checkKey(request);
    if (path == foodPath) {
        response.set_content(searchFoods(query), jsonType.data());
        return;
    }
    if (!path.starts_with(foodPath) || path.size() <= foodPath.size() || path[foodPath.size()] != '/')
        notFound("resource");
    const auto rest = path.substr(foodPath.size() + 1);
    if (rest == "brands_and_categories") {
        response.set_content(brandsAndCategories(query), jsonType.data());
        return;
    }
    const auto slash = rest.find('/');
    const auto foodId = parseId(rest.substr(0, slash));
    if (!foodId || !m_catalog.find(*foodId))
        notFound("food");
    const auto action = slash == std::string_view::npos ? std::string_view() : rest.substr(slash + 1);
    if (slash == std::string_view::npos)
        response.set_content(portions(*foodId), jsonType.data());
    else if (action == "get_nutrients")
        response.set_content(nutrients(*foodId, query), jsonType.data());
    else if (action == "accompanying_food_items")
        response.set_content(accompaniments(*foodId), jsonType.data());
    else
        notFound("resource");
}

std::string FoodApi::searchFoods(std::string_view query) const
{
    const Parameters parameters(query);
    const auto limit = parameters.integer("limit", defaultPage, 0, largestPage);
    const auto offset = parameters.integer("offset", 0, 0, std::numeric_limits<std::int32_t>::max());
    const auto text = parameters.text("search");
    const auto brand = parameters.text("food_brand");
    const auto category = parameters.text("food_category");

    auto found = m_search.matches(text);
    std::erase_if(found, [&](const RankedFood &ranked) {
        return (!brand.empty() && ranked.food->brand != brand) ||
               (!category.empty() && ranked.food->category != category);
    });
    const auto count = found.size();
    const auto first = std::min(count, static_cast<std::size_t>(offset));
    const auto last = std::min(count, first + static_cast<std::size_t>(limit));
    SearchEngine::orderBest(found, last);

    nlohmann::json next = nullptr;
    if (last < count) {
        next = std::string(foodPath) + "?food_brand=" + percentEncode(brand) +
               "&food_category=" + percentEncode(category) + "&limit=" + std::to_string(limit) +
               "&offset=" + std::to_string(last) + "&search=" + percentEncode(text);
    }
    // Spliced from the serialised foods: the search is the hot path.
    std::string reply =
        "{\"count\":" + std::to_string(count) + ",\"next\":" + serialise(next) + ",\"results\":[";
    for (auto i = first; i < last; ++i) {
        if (i != first)
            reply += ',';
        reply += serialisedFood(*found[i].food);
    }
    return reply + "]}";
}

std::string FoodApi::brandsAndCategories(std::string_view query) const
{
    const Parameters parameters(query);
    const auto limit = parameters.integer("limit", defaultPage, 0, largestPage);
    const auto offset = parameters.integer("offset", 0, 0, std::numeric_limits<std::int32_t>::max());
    std::map<std::string, int> brands;
    std::map<std::string, int> categories;
    for (const auto &ranked : m_search.matches(parameters.text("search"))) {
        if (!ranked.food->brand.empty())
            ++brands[ranked.food->brand];
        ++categories[ranked.food->category];
    }
    return serialise({{"brands", labelsByFrequency(brands, offset, limit)},
                      {"categories", labelsByFrequency(categories, offset, limit)}});
}

std::string FoodApi::portions(std::int64_t foodId) const
{
    auto list = nlohmann::json::array();
    for (const auto &portion : m_store.portions(foodId))
        list.push_back(portionJson(portion));
    return serialise({{"portions", list}});
}

std::string FoodApi::nutrients(std::int64_t foodId, std::string_view query) const
{
    const Parameters parameters(query);
    const double grams = parameters.amount("amount_value");
    if (parameters.text("amount_unit") != "grams")
        throw HttpError(400, "amount_unit must be \"grams\"", "amount_unit");
    auto macronutrients = nlohmann::json::array();
    auto micronutrients = nlohmann::json::array();
    for (const auto &nutrient : m_store.nutrients(foodId))
        (nutrient.isMacro ? macronutrients : micronutrients).push_back(nutrientJson(nutrient, grams));
    return serialise({{"macronutrients", macronutrients}, {"micronutrients", micronutrients}});
}

std::string FoodApi::accompaniments(std::int64_t foodId) const
{
    std::string reply = "[";
    for (const auto id : m_store.accompaniments(foodId)) {
        if (const auto *food = m_catalog.find(id)) {
            if (reply.size() > 1)
                reply += ',';
            reply += serialisedFood(*food);
        }
    }
    return reply + "]";
}

std::string FoodApi::portionImage(std::int64_t portionId, std::string_view query) const
{
    const Parameters parameters(query);
    const auto type = parameters.text("type");
    if (!type.empty() && type != "thumbnail")
        throw HttpError(400, "type must be \"thumbnail\" or absent", "type");
    const int standard = type == "thumbnail" ? thumbnailSize : fullPictureSize;
    const auto width = parameters.integer("width", standard, smallestPicture, largestPicture);
    const auto height = parameters.integer("height", width, smallestPicture, largestPicture);
    if (width != height)
        throw HttpError(400, "portion pictures are square: width and height must be equal", "height");
    const int size = static_cast<int>(width);
    if (const auto kept = m_pictureCache.find(portionId, size))
        return *kept;
    const auto row = m_store.portionPicture(portionId);
    if (!row || row->picture.empty())
        notFound("portion picture");
    auto picture = std::make_shared<const std::string>(m_pictures.png(*row, size));
    m_pictureCache.keep(portionId, size, picture);
    return *picture;
}

} // namespace foodservice
