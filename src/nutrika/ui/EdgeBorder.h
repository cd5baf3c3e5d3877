#pragma once

#include <QColor>
#include <QList>
#include <QQuickItem>
#include <QRectF>

namespace nutrika {

/// Lines along chosen edges of its bounds, for the thin separators under rows and headers.
class EdgeBorder : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal lineWidth READ lineWidth WRITE setLineWidth NOTIFY lineWidthChanged)
    Q_PROPERTY(QList<int> edges READ edgeList WRITE setEdgeList NOTIFY edgesChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    enum Edge
    {
        Top,
        Leading,
        Bottom,
        Trailing
    };
    Q_ENUM(Edge)

    explicit EdgeBorder(QQuickItem *parent = nullptr);

    /// One rectangle per listed edge, in list order; a repeated edge repeats its rectangle.
    [[nodiscard]] static QList<QRectF> path(const QRectF &rect, qreal width, const QList<Edge> &edges);

    [[nodiscard]] qreal lineWidth() const { return m_lineWidth; }
    void setLineWidth(qreal width);
    [[nodiscard]] QList<int> edgeList() const;
    void setEdgeList(const QList<int> &edges);
    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor &color);

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

signals:
    void lineWidthChanged();
    void edgesChanged();
    void colorChanged();

private:
    qreal m_lineWidth = 1;
    QList<Edge> m_edges;
    QColor m_color = Qt::black;
};

} // namespace nutrika
