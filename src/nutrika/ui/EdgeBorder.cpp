#include "EdgeBorder.h"

#include <QQuickWindow>
#include <QSGRectangleNode>

namespace nutrika {

// Scene-graph rectangles rather than a painted image: a list has one border per row.
EdgeBorder::EdgeBorder(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

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

void EdgeBorder::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    update();
}

QSGNode *EdgeBorder::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    // Rebuilt whole: a border has at most a few rectangles and changes rarely.
    delete oldNode;
    const QList<QRectF> rects = path(boundingRect(), m_lineWidth, m_edges);
    if (rects.isEmpty())
        return nullptr;
    auto *node = new QSGNode;
    for (const QRectF &rect : rects) {
        QSGRectangleNode *line = window()->createRectangleNode();
        line->setRect(rect);
        line->setColor(m_color);
        node->appendChildNode(line);
    }
    return node;
}

} // namespace nutrika
