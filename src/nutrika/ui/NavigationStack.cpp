#include "NavigationStack.h"

#include <memory>
#include <QEasingCurve>
#include <QParallelAnimationGroup>
#include <QPropertyAnimation>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <utility>

namespace nutrika {

namespace {

constexpr int slideMs = 400;

NavigationStackAttached *attached(QQuickItem *item)
{
    return qobject_cast<NavigationStackAttached *>(qmlAttachedPropertiesObject<NavigationStack>(item, true));
}

} // namespace

void NavigationStackAttached::setIndex(int index)
{
    if (m_index == index)
        return;
    m_index = index;
    emit indexChanged();
}

NavigationStack::NavigationStack(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
}

NavigationStack::~NavigationStack()
{
    // The screens go with the stack; nothing waits for a slide any more.
    m_afterTransition = nullptr;
    delete std::exchange(m_transition, nullptr);
}

NavigationStackAttached *NavigationStack::qmlAttachedProperties(QObject *object)
{
    return new NavigationStackAttached(object);
}

void NavigationStack::setInitialItem(QQuickItem *item)
{
    if (isComponentComplete()) {
        qWarning("NavigationStack: the initial screen is set once, when the stack is built");
        return;
    }
    if (m_initialItem == item)
        return;
    m_initialItem = item;
    emit initialItemChanged();
}

QQuickItem *NavigationStack::currentItem() const
{
    return m_items.isEmpty() ? nullptr : m_items.last().data();
}

QQuickItem *NavigationStack::get(int index) const
{
    return index >= 0 && index < depth() ? m_items.at(index).data() : nullptr;
}

void NavigationStack::componentComplete()
{
    QQuickItem::componentComplete();
    if (!m_initialItem)
        return;
    place(m_initialItem, 0);
    m_items.append(m_initialItem);
    emit depthChanged();
    emit currentItemChanged();
    bringToFront(m_initialItem);
    emit attached(m_initialItem)->activated();
}

void NavigationStack::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    for (const QPointer<QQuickItem> &item : std::as_const(m_items))
        if (item)
            item->setSize(newGeometry.size());
}

QQuickItem *NavigationStack::push(const QVariant &screen, const QVariantMap &properties)
{
    QQmlEngine *engine = qmlEngine(this);
    if (!engine) {
        qWarning("NavigationStack: no QML engine to build a screen");
        return nullptr;
    }
    finishTransition();
    auto *component = screen.value<QQmlComponent *>();
    std::unique_ptr<QQmlComponent> loaded;
    if (!component) {
        loaded = std::make_unique<QQmlComponent>(engine, screen.toUrl(), QQmlComponent::PreferSynchronous);
        component = loaded.get();
    }
    QQmlContext *context = component->creationContext() ? component->creationContext() : qmlContext(this);
    QObject *object =
        component->isReady() ? component->createWithInitialProperties(properties, context) : nullptr;
    auto *item = qobject_cast<QQuickItem *>(object);
    if (!item) {
        qWarning("NavigationStack: cannot show %s: %s", qPrintable(component->url().toString()),
                 qPrintable(component->errorString()));
        delete object;
        return nullptr;
    }
    // The screen keeps the component it was built from for as long as it lives.
    if (loaded)
        loaded.release()->setParent(item);
    QQmlEngine::setObjectOwnership(item, QQmlEngine::CppOwnership);

    QQuickItem *below = currentItem();
    place(item, depth());
    m_items.append(item);
    emit depthChanged();
    emit currentItemChanged();
    bringToFront(item);
    const QPointer<QQuickItem> entering(item), covered(below);
    slide(item, width(), below, -width(), [entering, covered] {
        if (covered)
            covered->setVisible(false);
        if (entering)
            emit attached(entering)->activated();
    });
    return item;
}

void NavigationStack::pop(QQuickItem *to)
{
    finishTransition();
    const int target = to ? int(m_items.indexOf(to)) : depth() - 2;
    if (target < 0 || target >= depth() - 1)
        return;
    // Screens between the target and the top go at once; only the top one is seen sliding away.
    while (depth() > target + 2)
        remove(m_items.takeAt(target + 1));
    const QPointer<QQuickItem> top = m_items.takeLast();
    if (top)
        attached(top)->setIndex(-1);
    QQuickItem *revealed = currentItem();
    emit depthChanged();
    emit currentItemChanged();
    if (revealed) {
        revealed->setVisible(true);
        bringToFront(revealed);
    }
    const QPointer<QQuickItem> uncovered(revealed);
    slide(revealed, -width(), top, width(), [this, top, uncovered] {
        remove(top);
        if (uncovered)
            emit attached(uncovered)->activated();
    });
}

void NavigationStack::place(QQuickItem *item, int index)
{
    item->setParent(this);
    item->setParentItem(this);
    item->setPosition({});
    item->setSize(size());
    item->setVisible(true);
    attached(item)->setIndex(index);
}

void NavigationStack::bringToFront(QQuickItem *item)
{
    item->setFocus(true);
    emit attached(item)->activating();
}

void NavigationStack::remove(QQuickItem *item)
{
    if (!item)
        return;
    NavigationStackAttached *state = attached(item);
    state->setIndex(-1);
    emit state->removed();
    item->setVisible(false);
    item->deleteLater();
}

void NavigationStack::slide(QQuickItem *entering, qreal from, QQuickItem *leaving, qreal to,
                            std::function<void()> done)
{
    m_afterTransition = std::move(done);
    // Before the first frame there is nothing to watch slide.
    if (!isComponentComplete() || !window() || width() <= 0) {
        if (entering)
            entering->setX(0);
        std::exchange(m_afterTransition, nullptr)();
        return;
    }
    auto *group = new QParallelAnimationGroup(this);
    const auto animate = [group](QQuickItem *item, qreal start, qreal end) {
        if (!item)
            return;
        auto *move = new QPropertyAnimation(item, "x", group);
        move->setStartValue(start);
        move->setEndValue(end);
        move->setDuration(slideMs);
        move->setEasingCurve(QEasingCurve::OutCubic);
    };
    animate(entering, from, 0);
    animate(leaving, 0, to);
    m_transition = group;
    emit busyChanged();
    connect(group, &QAbstractAnimation::finished, this, &NavigationStack::finishTransition);
    group->start();
}

// Ends the running slide at once, at its end positions: a new push or pop never starts mid-way.
void NavigationStack::finishTransition()
{
    QParallelAnimationGroup *group = std::exchange(m_transition, nullptr);
    if (!group)
        return;
    group->setCurrentTime(group->totalDuration());
    group->stop();
    group->deleteLater();
    if (m_afterTransition)
        std::exchange(m_afterTransition, nullptr)();
    emit busyChanged();
}

} // namespace nutrika
