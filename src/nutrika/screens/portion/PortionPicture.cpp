#include "PortionPicture.h"

#include "EnvironmentVariables.h"
#include "PortionImageRequest.h"

#include <QPainter>
#include <QPointer>

namespace nutrika {

PortionPicture::PortionPicture(QQuickItem *parent) : QQuickPaintedItem(parent) {}

void PortionPicture::load()
{
    const auto done = [self = QPointer(this)](const std::optional<QImage> &image) {
        if (!self || !image)
            return;
        self->m_image = *image;
        emit self->imageChanged();
        self->update();
    };
    ServiceClient &client = *EnvironmentVariables::shared()->serviceClient();
    if (m_fullSize)
        requestPortionImage(client, m_portionId, this, done);
    else
        requestPortionThumbnail(client, m_portionId, this, done);
}

void PortionPicture::paint(QPainter *painter)
{
    if (m_image.isNull())
        return;
    // Fitted, not stretched: a portion drawn out of proportion would mislead about its size.
    QSizeF fitted = QSizeF(m_image.size()).scaled(size(), Qt::KeepAspectRatio);
    // A thumbnail enlarged past its pixels turns soft; the full-size picture is there for a closer look.
    if (!m_fullSize)
        fitted = fitted.boundedTo(m_image.deviceIndependentSize());
    const QRectF target(QPointF((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), fitted);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(target, m_image);
}

void PortionPicture::setPortionId(qint64 id)
{
    m_portionId = id;
    emit portionIdChanged();
}

void PortionPicture::setFullSize(bool fullSize)
{
    m_fullSize = fullSize;
    emit fullSizeChanged();
}

} // namespace nutrika
