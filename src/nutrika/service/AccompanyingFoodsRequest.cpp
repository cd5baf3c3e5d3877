#include "AccompanyingFoodsRequest.h"

#include "ServiceClient.h"
#include "ServiceFood.h"

#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

QString accompanyingFoodsPath(qint64 foodId)
{
    return u"/api/v1/healthcare//food/"_s + QString::number(foodId) + u"/accompanying_food_items"_s;
}

ServiceResult<QList<FoodItem>> mapAccompanyingFoodsReply(const ServiceReply &reply)
{
    if (!hasJsonBody(reply))
        return failureOf(reply);
    QList<FoodItem> foods;
    for (const QJsonValue element : reply.json.array()) {
        if (std::optional<FoodItem> food = serviceFood(element))
            foods.append(std::move(*food));
    }
    return foods;
}

void requestAccompanyingFoods(ServiceClient &client, qint64 foodId, QObject *context,
                              std::function<void(std::optional<QList<FoodItem>> foods)> done)
{
    client.sendJsonRequest(accompanyingFoodsPath(foodId), {}, context,
                           [done = std::move(done)](const ServiceReply &reply) {
                               ServiceResult<QList<FoodItem>> result = mapAccompanyingFoodsReply(reply);
                               if (auto *foods = std::get_if<QList<FoodItem>>(&result))
                                   done(std::move(*foods));
                               else
                                   done(std::nullopt);
                           });
}

} // namespace nutrika
