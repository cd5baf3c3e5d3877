#pragma once

#include "FoodItem.h"
#include "QueryEncoding.h"
#include "ServiceFailure.h"

#include <functional>
#include <QList>
#include <QObject>

namespace nutrika {

class ServiceClient;

/// Foods asked for per page; the screen adds it to its offset after each good reply.
inline constexpr qint64 FOOD_SEARCH_PAGE_SIZE = 50;

/// One food search: the settled text, the page offset and the filter values to send ("" for no filter).
struct FoodSearchQuery
{
    QString search;
    qint64 offset = 0;
    QString foodBrand;
    QString foodCategory;
};

/// One page of search results, split by "is_generic_item", each list in the service's order.
struct FoodSearchPage
{
    qint64 count = 0;
    QList<FoodItem> generic;
    QList<FoodItem> branded;
};

[[nodiscard]] QString foodSearchPath();
[[nodiscard]] QueryParameters foodSearchParameters(const FoodSearchQuery &query);

/// A page, or the failure; a body without an integer "count", a "results" array or a complete food in
/// every element is a server error.
[[nodiscard]] ServiceResult<FoodSearchPage> mapFoodSearchReply(const ServiceReply &reply);

/// Sends the search; on failure, writes the failure's diagnostic line before calling `done`.
void requestFoodSearch(ServiceClient &client, const FoodSearchQuery &query, QObject *context,
                       std::function<void(const ServiceResult<FoodSearchPage> &)> done);

} // namespace nutrika
