#include "EdgeBorder.h"

#include <QPainter>

namespace nutrika {

EdgeBorder::EdgeBorder(QQuickItem *parent) : QQuickPaintedItem(parent) {}

QList<QRectF> EdgeBorder::path(const QRectF &rect, qreal width, const QList<Edge> &edges)
{
    QList<QRectF> rects;
    for (const Edge edge : edges) {
        switch (edge) {
        case Top:
            rects.append({rect.left(), rect.top(), rect.width(), width});
            break;
        case Bottom:
            rects.append({rect.left(), rect.bottom() - width, rect.width(), width});
            break;
        case Leading:
            rects.append({rect.left(), rect.top(), width, rect.height()});
            break;
        case Trailing:
            rects.append({rect.right() - width, rect.top(), width, rect.height()});
            break;
        }
    }
    return rects;
}

void EdgeBorder::setLineWidth(qreal width)
{
    m_lineWidth = width;
    emit lineWidthChanged();
    update();
}

QList<int> EdgeBorder::edgeList() const
{
    QList<int> list;
    for (const Edge edge : m_edges)
        list.append(edge);
    return list;
}

void EdgeBorder::setEdgeList(const QList<int> &edges)
{
    m_edges.clear();
    for (const int edge : edges) {
        if (edge >= Top && edge <= Trailing)
            m_edges.append(static_cast<Edge>(edge));
    }
    emit edgesChanged();
    update();
}

void EdgeBorder::setColor(const QColor &color)
{
    m_color = color;
    emit colorChanged();
    update();
}

void EdgeBorder::paint(QPainter *painter)
{
    for (const QRectF &rect : path(boundingRect(), m_lineWidth, m_edges))
        painter->fillRect(rect, m_color);
}

} // namespace nutrika
