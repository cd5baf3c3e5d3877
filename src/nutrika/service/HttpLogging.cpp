#include "HttpLogging.h"

namespace nutrika {

Q_LOGGING_CATEGORY(lcHttp, "nutrika.http", QtWarningMsg)

} // namespace nutrika
