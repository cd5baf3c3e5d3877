#pragma once

#include <QLoggingCategory>

namespace nutrika {

/// Requests and replies of the food-data service client ("nutrika.http"). Never logs the API key.
Q_DECLARE_LOGGING_CATEGORY(lcHttp)

} // namespace nutrika
