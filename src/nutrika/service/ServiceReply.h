#pragma once

#include <optional>
#include <QByteArray>
#include <QJsonDocument>

namespace nutrika {

/// A JSON reply of the food-data service, classified before its body is used.
struct ServiceReply
{
    enum class Outcome
    {
        ConnectionFailure,
        ServerError,
        Body
    };

    Outcome outcome = Outcome::ConnectionFailure;
    /// Absent when no HTTP response arrived.
    std::optional<int> status;
    QByteArray body;
    /// The parsed body; only for Outcome::Body.
    QJsonDocument json;
    bool isJson = false;

    /// No response is a connection failure, a status of 400 or more a server error, anything else a body.
    [[nodiscard]] static ServiceReply classify(std::optional<int> status, QByteArray body);
};

} // namespace nutrika
