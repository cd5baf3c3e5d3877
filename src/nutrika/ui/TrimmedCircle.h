#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace nutrika {

/// One ring of the spinner: a circle open over a fifth of its circumference.
class TrimmedCircle : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(qreal lineWidth READ lineWidth WRITE setLineWidth NOTIFY lineWidthChanged)

public:
    explicit TrimmedCircle(QQuickItem *parent = nullptr);

    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor &color);
    [[nodiscard]] qreal lineWidth() const { return m_lineWidth; }
    void setLineWidth(qreal width);

    void paint(QPainter *painter) override;

signals:
    void colorChanged();
    void lineWidthChanged();

private:
    QColor m_color = Qt::black;
    qreal m_lineWidth = 1;
};

} // namespace nutrika
