#include "ApiKey.h"

namespace nutrika {

QString API_KEY;

} // namespace nutrika
