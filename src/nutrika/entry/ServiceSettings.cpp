#include "EnvironmentVariables.h"
#include "nutrika/Nutrika.h"

namespace nutrika {

void setServiceSettings(const ServiceSettings &settings)
{
    ServiceClient *client = EnvironmentVariables::shared()->serviceClient();
    if (!settings.origin.isEmpty())
        client->setOrigin(settings.origin);
    if (!settings.caCertificates.isEmpty())
        client->setCaCertificates(settings.caCertificates);
}

ServiceSettings serviceSettings()
{
    const ServiceClient *client = EnvironmentVariables::shared()->serviceClient();
    return {client->origin(), client->caCertificates()};
}

} // namespace nutrika
