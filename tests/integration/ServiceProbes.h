#pragma once

#include "FoodSearchRequest.h"
#include "NutrientsRequest.h"
#include "ServiceClient.h"

#include <functional>
#include <QObject>
#include <QString>

/// Sends one request through its public function and reports the outcome as a short text.
using Probe = std::function<void(nutrika::ServiceClient &client, QObject *context,
                                 std::function<void(const QString &)> report)>;
Q_DECLARE_METATYPE(Probe)

namespace probe {
[[nodiscard]] Probe foodSearch(const nutrika::FoodSearchQuery &query);
[[nodiscard]] Probe filterOptions(const QString &search);
[[nodiscard]] Probe portions(qint64 foodId);
[[nodiscard]] Probe nutrients(const nutrika::FoodItem &food, const nutrika::PortionItem &portion);
[[nodiscard]] Probe accompanyingFoods(qint64 foodId);
[[nodiscard]] Probe thumbnail(qint64 portionId);
[[nodiscard]] Probe picture(qint64 portionId);

/// Points `client` at `origin`, trusting the authority that signs the recording server's certificate.
void pointAt(nutrika::ServiceClient &client, const QString &origin);

/// Runs the probe through `client`, spinning the event loop until it reports; an empty text if it never does.
[[nodiscard]] QString run(nutrika::ServiceClient &client, const Probe &probe);
} // namespace probe
