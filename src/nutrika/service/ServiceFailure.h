#pragma once

#include "ServiceReply.h"

#include <QString>
#include <variant>

namespace nutrika {

/// Why a request gave no usable data. A body that is not the JSON expected counts as a server error.
enum class ServiceFailure
{
    ConnectionFailure,
    ServerError
};

/// The mapped records of a reply, or why there are none.
template <typename T> using ServiceResult = std::variant<T, ServiceFailure>;

/// The alert a screen shows for a failure; the body is also the failure's diagnostic line.
struct FailureMessage
{
    QString title;
    QString body;
};

[[nodiscard]] FailureMessage failureMessage(ServiceFailure failure);

/// The failure a reply stands for when it cannot be mapped.
[[nodiscard]] ServiceFailure failureOf(const ServiceReply &reply);

/// True when the reply is a body that parsed as JSON.
[[nodiscard]] bool hasJsonBody(const ServiceReply &reply);

} // namespace nutrika
