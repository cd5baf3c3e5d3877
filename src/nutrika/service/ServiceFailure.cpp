#include "ServiceFailure.h"

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

FailureMessage failureMessage(ServiceFailure failure)
{
    if (failure == ServiceFailure::ConnectionFailure)
        return {u"Connection Error"_s, u"Unable to connect to server, try again later"_s};
    return {u"Error"_s, u"Error loading data"_s};
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
