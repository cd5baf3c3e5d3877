#include "PortionImageRequest.h"

#include "ServiceClient.h"

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

namespace {

void requestPicture(ServiceClient &client, const QString &pathWithQuery, QObject *context,
                    std::function<void(const std::optional<QImage> &)> done)
{
    client.sendRawRequest(pathWithQuery, context,
                          [done = std::move(done)](std::optional<int> status, const QByteArray &body) {
                              done(mapPortionImage(status, body));
                          });
}

} // namespace

QString portionImagePath(qint64 portionId)
{
    return u"/api/v1/healthcare//food_portion_images/"_s + QString::number(portionId);
}

QString portionThumbnailPath(qint64 portionId)
{
    return portionImagePath(portionId) + u"?width=200&height=200&type=thumbnail"_s;
}

std::optional<QImage> mapPortionImage(std::optional<int> status, const QByteArray &body)
{
    if (!status || body.isEmpty())
        return std::nullopt;
    QImage image = QImage::fromData(body);
    if (image.isNull())
        return std::nullopt;
    return image;
}

void requestPortionThumbnail(ServiceClient &client, qint64 portionId, QObject *context,
                             std::function<void(const std::optional<QImage> &)> done)
{
    requestPicture(client, portionThumbnailPath(portionId), context, std::move(done));
}

void requestPortionImage(ServiceClient &client, qint64 portionId, QObject *context,
                         std::function<void(const std::optional<QImage> &)> done)
{
    requestPicture(client, portionImagePath(portionId), context, std::move(done));
}

} // namespace nutrika
