#pragma once

#include "db/FoodStore.h"
#include "picture/PictureCache.h"
#include "picture/PortionPictures.h"
#include "search/Catalog.h"
#include "search/SearchEngine.h"

#include <string>
#include <string_view>
#include <vector>

namespace httplib {
class Server;
struct Request;
struct Response;
} // namespace httplib

namespace foodservice {

// The food-data REST API under /api/v1/healthcare/. Paths are matched literally,
// double slash included, from the raw request target.
class FoodApi
{
public:
    FoodApi(const Catalog &catalog, const SearchEngine &search, const FoodStore &store, std::string apiKey);

    // Answers every GET request of the server.
    void install(httplib::Server &server) const;

private:
    void handle(const httplib::Request &request, httplib::Response &response) const;
    void route(std::string_view path, std::string_view query, const httplib::Request &request,
               httplib::Response &response) const;
    void checkKey(const httplib::Request &request) const;

    [[nodiscard]] std::string searchFoods(std::string_view query) const;
    [[nodiscard]] std::string brandsAndCategories(std::string_view query) const;
    [[nodiscard]] std::string portions(std::int64_t foodId) const;
    [[nodiscard]] std::string nutrients(std::int64_t foodId, std::string_view query) const;
    [[nodiscard]] std::string accompaniments(std::int64_t foodId) const;
    [[nodiscard]] std::string portionImage(std::int64_t portionId, std::string_view query) const;

    // The food object of the catalog's food, serialised once.
    [[nodiscard]] const std::string &serialisedFood(const FoodRecord &food) const;

    const Catalog &m_catalog;
    const SearchEngine &m_search;
    const FoodStore &m_store;
    std::string m_apiKey;
    std::vector<std::string> m_serialisedFoods;
    PortionPictures m_pictures;
    mutable PictureCache m_pictureCache;
};

} // namespace foodservice
