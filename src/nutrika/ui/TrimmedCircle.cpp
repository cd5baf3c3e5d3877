#include "TrimmedCircle.h"

#include <QPainter>

namespace nutrika {

TrimmedCircle::TrimmedCircle(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void TrimmedCircle::setColor(const QColor &color)
{
    m_color = color;
    emit colorChanged();
    update();
}

void TrimmedCircle::setLineWidth(qreal width)
{
    m_lineWidth = width;
    emit lineWidthChanged();
    update();
}

void TrimmedCircle::paint(QPainter *painter)
{
    const QRectF padded =
        boundingRect().adjusted(m_lineWidth / 2, m_lineWidth / 2, -m_lineWidth / 2, -m_lineWidth / 2);
    const qreal side = std::min(padded.width(), padded.height());
    if (side <= 0)
        return;
    QRectF circle(0, 0, side, side);
    circle.moveCenter(padded.center());
    QPen pen(m_color, m_lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    pen.setMiterLimit(10);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(pen);
    // From 0.1 to 0.9 of the way round, clockwise from three o'clock (Qt angles run counter-clockwise).
    painter->drawArc(circle, -36 * 16, -288 * 16);
}

} // namespace nutrika
