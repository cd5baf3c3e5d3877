#pragma once

#include <QImage>
#include <QQuickPaintedItem>
#include <QtQmlIntegration>

namespace nutrika {

/// A portion's picture, fetched from the service when load() is called and kept only here. It draws the
/// picture fitted into its bounds; until a picture arrives it draws nothing and the box shows a spinner.
class PortionPicture : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qint64 portionId READ portionId WRITE setPortionId NOTIFY portionIdChanged)
    /// The full-size picture instead of the thumbnail.
    Q_PROPERTY(bool fullSize READ fullSize WRITE setFullSize NOTIFY fullSizeChanged)
    Q_PROPERTY(bool hasImage READ hasImage NOTIFY imageChanged)

public:
    explicit PortionPicture(QQuickItem *parent = nullptr);

    /// Sends the request anew; a reply without a picture leaves the one shown (or none).
    Q_INVOKABLE void load();

    void paint(QPainter *painter) override;

    [[nodiscard]] qint64 portionId() const { return m_portionId; }
    void setPortionId(qint64 id);
    [[nodiscard]] bool fullSize() const { return m_fullSize; }
    void setFullSize(bool fullSize);
    [[nodiscard]] bool hasImage() const { return !m_image.isNull(); }
    [[nodiscard]] const QImage &image() const { return m_image; }

signals:
    void portionIdChanged();
    void fullSizeChanged();
    void imageChanged();

private:
    qint64 m_portionId = -1;
    bool m_fullSize = false;
    QImage m_image;
};

} // namespace nutrika
