#pragma once

#include "QueryEncoding.h"
#include "ServiceFailure.h"

#include <functional>
#include <optional>
#include <QObject>
#include <QStringList>

namespace nutrika {

class ServiceClient;

/// Brand and category labels for a search text, in the service's order, without the "All" entries.
struct FilterOptions
{
    QStringList brands;
    QStringList categories;
};

[[nodiscard]] QString filterOptionsPath();
[[nodiscard]] QueryParameters filterOptionsParameters(const QString &search);

/// The options, or the failure. A missing or non-array list is empty; an option that is neither a
/// string nor an object with a string "label" makes the body a server error.
[[nodiscard]] ServiceResult<FilterOptions> mapFilterOptionsReply(const ServiceReply &reply);

/// Sends the request; on any failure writes "Error loading brands/categories" and passes nullopt.
void requestFilterOptions(ServiceClient &client, const QString &search, QObject *context,
                          std::function<void(const std::optional<FilterOptions> &)> done);

} // namespace nutrika
