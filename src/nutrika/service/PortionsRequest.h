#pragma once

#include "PortionItem.h"
#include "ServiceFailure.h"

#include <functional>
#include <optional>
#include <QList>
#include <QObject>

namespace nutrika {

class ServiceClient;

[[nodiscard]] QString portionsPath(qint64 foodId);

/// The portions in reply order, skipping every element with a required member missing or of another
/// type. A body without a "portions" array is a server error.
[[nodiscard]] ServiceResult<QList<PortionItem>> mapPortionsReply(const ServiceReply &reply);

/// Sends the request; on failure writes the failure's diagnostic line and passes nullopt.
void requestPortions(ServiceClient &client, qint64 foodId, QObject *context,
                     std::function<void(const std::optional<QList<PortionItem>> &)> done);

} // namespace nutrika
