#pragma once

#include <QString>

namespace nutrika {

/// The food-data service key handed over by the host; read afresh for each request. Never printed.
extern QString API_KEY;

} // namespace nutrika
