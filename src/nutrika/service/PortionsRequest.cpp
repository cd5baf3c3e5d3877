#include "PortionsRequest.h"

#include "Diagnostics.h"
#include "ReplyFields.h"
#include "ServiceClient.h"

#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

namespace {

std::optional<ConvertibleUnit> convertibleUnit(const QJsonValue &value)
{
    if (!value.isObject())
        return std::nullopt;
    const QJsonObject o = value.toObject();
    std::optional<QString> type = lenient::string(o.value("type"_L1));
    const std::optional<qint64> isBase = lenient::integer(o.value("is_base"_L1));
    const std::optional<qint64> id = lenient::integer(o.value("id"_L1));
    const std::optional<qint64> rate = lenient::integer(o.value("to_base_conversion_rate"_L1));
    std::optional<QString> name = lenient::string(o.value("name"_L1));
    std::optional<QString> unit = lenient::string(o.value("unit"_L1));
    if (!type || !isBase || !id || !rate || !name || !unit)
        return std::nullopt;
    return ConvertibleUnit{std::move(*type), *isBase, *id, *rate, std::move(*name), std::move(*unit)};
}

std::optional<PortionItem> portion(const QJsonValue &value)
{
    const QJsonObject o = value.toObject();
    const std::optional<qint64> orderNum = lenient::integer(o.value("order_num"_L1));
    const std::optional<qint64> id = lenient::integer(o.value("id"_L1));
    std::optional<QString> unit = lenient::string(o.value("unit"_L1));
    const std::optional<qint64> databaseImport = lenient::integer(o.value("database_import"_L1));
    const std::optional<qint64> size = lenient::integer(o.value("size"_L1));
    std::optional<QString> imageName = lenient::string(o.value("image_name"_L1));
    std::optional<QString> description = lenient::string(o.value("description"_L1));
    std::optional<ConvertibleUnit> convertible = convertibleUnit(o.value("convertible_unit"_L1));
    if (!orderNum || !id || !unit || !databaseImport || !size || !imageName || !description || !convertible)
        return std::nullopt;

    const QJsonValue isDefault = o.value("is_default"_L1);
    return PortionItem{*orderNum,
                       *id,
                       *id,
                       std::move(*unit),
                       *databaseImport,
                       *size,
                       isDefault.isBool() ? std::optional(isDefault.toBool()) : std::nullopt,
                       std::move(*imageName),
                       std::move(*description),
                       std::move(*convertible)};
}

} // namespace

QString portionsPath(qint64 foodId)
{
    return u"/api/v1/healthcare//food/"_s + QString::number(foodId);
}

ServiceResult<QList<PortionItem>> mapPortionsReply(const ServiceReply &reply)
{
    if (!hasJsonBody(reply))
        return failureOf(reply);
    const QJsonValue portions = reply.json.object().value("portions"_L1);
    if (!portions.isArray())
        return ServiceFailure::ServerError;

    QList<PortionItem> result;
    for (const QJsonValue element : portions.toArray()) {
        if (std::optional<PortionItem> item = portion(element))
            result.append(std::move(*item));
    }
    return result;
}

void requestPortions(ServiceClient &client, qint64 foodId, QObject *context,
                     std::function<void(const std::optional<QList<PortionItem>> &)> done)
{
    client.sendJsonRequest(portionsPath(foodId), {}, context,
                           [done = std::move(done)](const ServiceReply &reply) {
                               ServiceResult<QList<PortionItem>> result = mapPortionsReply(reply);
                               if (auto *portions = std::get_if<QList<PortionItem>>(&result)) {
                                   done(std::move(*portions));
                                   return;
                               }
                               printDiagnostic(failureMessage(std::get<ServiceFailure>(result)).body);
                               done(std::nullopt);
                           });
}

} // namespace nutrika
