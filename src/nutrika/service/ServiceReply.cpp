#include "ServiceReply.h"

namespace nutrika {

ServiceReply ServiceReply::classify(std::optional<int> status, QByteArray body)
{
    ServiceReply reply;
    reply.status = status;
    reply.body = std::move(body);
    if (!status) {
        reply.outcome = Outcome::ConnectionFailure;
    } else if (*status >= 400) {
        reply.outcome = Outcome::ServerError;
    } else {
        reply.outcome = Outcome::Body;
        QJsonParseError error;
        reply.json = QJsonDocument::fromJson(reply.body, &error);
        reply.isJson = error.error == QJsonParseError::NoError;
    }
    return reply;
}

} // namespace nutrika
