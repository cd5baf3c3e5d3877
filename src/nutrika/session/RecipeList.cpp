#include "RecipeList.h"

namespace nutrika {

void RecipeList::setItems(const QList<RecipeItem> &items)
{
    m_items = items;
    emit itemsChanged();
}

} // namespace nutrika
