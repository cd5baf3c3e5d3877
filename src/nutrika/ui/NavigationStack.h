#pragma once

#include <QList>
#include <QPointer>
#include <QQuickItem>
#include <QVariantMap>

class QParallelAnimationGroup;

namespace nutrika {

/// What a screen on a NavigationStack hears of it: its place, and when it comes to the front or goes.
class NavigationStackAttached : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(int index READ index NOTIFY indexChanged)

public:
    using QObject::QObject;

    /// The screen's place in the stack from the bottom; -1 once it has left the stack.
    [[nodiscard]] int index() const { return m_index; }
    void setIndex(int index);

signals:
    void indexChanged();
    /// The screen starts to come to the front (pushed, or uncovered by a pop).
    void activating();
    /// The screen is in front and its slide has finished.
    void activated();
    /// The screen has left the stack; it is deleted next.
    void removed();

private:
    int m_index = -1;
};

/// The module's navigation: screens pushed from the right and popped back to the right, as a phone's
/// navigation stack does. Built on the plain item so that the first screen needs no control library.
class NavigationStack : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    QML_ATTACHED(nutrika::NavigationStackAttached)
    Q_PROPERTY(QQuickItem *initialItem READ initialItem WRITE setInitialItem NOTIFY initialItemChanged)
    Q_PROPERTY(int depth READ depth NOTIFY depthChanged)
    Q_PROPERTY(QQuickItem *currentItem READ currentItem NOTIFY currentItemChanged)
    Q_PROPERTY(bool busy READ isBusy NOTIFY busyChanged)

public:
    explicit NavigationStack(QQuickItem *parent = nullptr);
    ~NavigationStack() override;
    Q_DISABLE_COPY_MOVE(NavigationStack)

    [[nodiscard]] QQuickItem *initialItem() const { return m_initialItem; }
    void setInitialItem(QQuickItem *item);
    [[nodiscard]] int depth() const { return int(m_items.size()); }
    [[nodiscard]] QQuickItem *currentItem() const;
    [[nodiscard]] bool isBusy() const { return m_transition != nullptr; }

    /// Builds `screen`, a file's URL or a Component, with `properties` (required ones included) and
    /// slides it in. Returns the screen, or null with a warning when it cannot be built.
    Q_INVOKABLE QQuickItem *push(const QVariant &screen, const QVariantMap &properties = {});
    /// Slides back to `to`, removing every screen above it; without `to`, removes the top screen.
    Q_INVOKABLE void pop(QQuickItem *to = nullptr);
    /// The screen at `index` from the bottom, or null.
    Q_INVOKABLE QQuickItem *get(int index) const;

    static NavigationStackAttached *qmlAttachedProperties(QObject *object);

signals:
    void initialItemChanged();
    void depthChanged();
    void currentItemChanged();
    void busyChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void place(QQuickItem *item, int index);
    void bringToFront(QQuickItem *item);
    void remove(QQuickItem *item);
    // Slides `entering` in from `from` while `leaving` slides out to `to`; `done` runs at the end.
    void slide(QQuickItem *entering, qreal from, QQuickItem *leaving, qreal to, std::function<void()> done);
    void finishTransition();

    QPointer<QQuickItem> m_initialItem;
    QList<QPointer<QQuickItem>> m_items;
    QParallelAnimationGroup *m_transition = nullptr;
    std::function<void()> m_afterTransition;
};

} // namespace nutrika
