#include "ServiceFailure.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

FailureMessage failureMessage(ServiceFailure failure)
{
    if (failure == ServiceFailure::ConnectionFailure)
        return {
            QCoreApplication::translate("ServiceFailure", "Connection Error"),
            QCoreApplication::translate("ServiceFailure", "Unable to connect to server, try again later")};
    return {QCoreApplication::translate("ServiceFailure", "Error"),
            QCoreApplication::translate("ServiceFailure", "Error loading data")};
}

ServiceFailure failureOf(const ServiceReply &reply)
{
    return reply.outcome == ServiceReply::Outcome::ConnectionFailure ? ServiceFailure::ConnectionFailure
                                                                     : ServiceFailure::ServerError;
}

bool hasJsonBody(const ServiceReply &reply)
{
    return reply.outcome == ServiceReply::Outcome::Body && reply.isJson;
}

} // namespace nutrika
