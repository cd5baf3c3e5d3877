#include "ReadingOrder.h"

#include <QQuickItem>

namespace nutrika {

void ReadingOrder::readLast(QQuickItem *item)
{
    if (!item || !item->parentItem())
        return;
    QQuickItem *last = item->parentItem()->childItems().constLast();
    if (last != item)
        item->stackAfter(last);
}

} // namespace nutrika
