#pragma once

#include <functional>
#include <optional>
#include <QByteArray>
#include <QImage>
#include <QObject>

namespace nutrika {

class ServiceClient;

/// Paths of a portion's pictures, by the portion's `id`.
[[nodiscard]] QString portionThumbnailPath(qint64 portionId);
[[nodiscard]] QString portionImagePath(qint64 portionId);

/// The decoded picture; absent without a response or when the bytes are not an image. The status is
/// not looked at.
[[nodiscard]] std::optional<QImage> mapPortionImage(std::optional<int> status, const QByteArray &body);

/// Fetch a portion's thumbnail or full-size picture, without an Authorization header.
void requestPortionThumbnail(ServiceClient &client, qint64 portionId, QObject *context,
                             std::function<void(const std::optional<QImage> &)> done);
void requestPortionImage(ServiceClient &client, qint64 portionId, QObject *context,
                         std::function<void(const std::optional<QImage> &)> done);

} // namespace nutrika
