#pragma once

#include "QueryEncoding.h"
#include "ServiceConfiguration.h"
#include "ServiceReply.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <functional>
#include <optional>

class QNetworkAccessManager;

namespace nutrika {

/// The one network access manager of the module, living on the main thread.
[[nodiscard]] QNetworkAccessManager *sharedNetworkAccessManager();

/// GET origin + path + "?" + encoded query, with "Authorization: Api-Key <API_KEY>". `done` runs on the
/// main thread unless `context` has been destroyed by then.
void sendJsonRequest(const QString &path, const QueryParameters &query, QObject *context,
                     std::function<void(const ServiceReply &)> done);

/// GET origin + pathWithQuery with no header of the module's own. `done` gets the HTTP status, absent
/// when no response arrived, and the body bytes.
void sendRawRequest(const QString &pathWithQuery, QObject *context,
                    std::function<void(std::optional<int> status, const QByteArray &body)> done);

} // namespace nutrika
