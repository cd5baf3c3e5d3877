#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

namespace nutrika {

/// Query parameters of one request; the map keeps the keys in ascending order.
using QueryParameters = QMap<QString, QString>;

/// "key=value" pairs joined by "&", keys ascending, each byte outside the RFC 3986 unreserved set,
/// "/" and "?" written as an upper-case percent escape. An empty value is sent as "key=".
[[nodiscard]] QByteArray encodeQuery(const QueryParameters &query);

} // namespace nutrika
