#pragma once

#include <QSslConfiguration>
#include <QString>

namespace nutrika {

/// Scheme and host of the food-data service, without a trailing slash: the environment variable
/// NUTRIKA_SERVICE_ORIGIN when set, else the origin chosen at build time.
[[nodiscard]] QString serviceOrigin();

/// TLS settings for every request: the system authorities plus the PEM file named by NUTRIKA_CA_CERT.
[[nodiscard]] QSslConfiguration serviceSslConfiguration();

} // namespace nutrika
