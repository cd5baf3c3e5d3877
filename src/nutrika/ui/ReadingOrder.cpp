#include "ReadingOrder.h"

#include <algorithm>
#include <QQuickItem>

namespace nutrika {

void ReadingOrder::readTopToBottom(QQuickItem *container)
{
    if (!container)
        return;
    QList<QQuickItem *> items = container->childItems();
    std::stable_sort(items.begin(), items.end(), [](const QQuickItem *a, const QQuickItem *b) {
        return a->y() != b->y() ? a->y() < b->y() : a->x() < b->x();
    });
    for (qsizetype i = 1; i < items.size(); ++i)
        items.at(i)->stackAfter(items.at(i - 1));
}

} // namespace nutrika
