#include "FoodAccompanimentsUIView.h"

#include "EnvironmentVariables.h"
#include "ExampleData.h"

namespace nutrika {

void FoodAccompanimentsUIView::choose(int index)
{
    if (index < 0 || index >= m_items.size())
        return;
    const FoodItem food = m_items.at(index);
    setIsPresented(false);
    EnvironmentVariables::shared()->setFoodItemForAccompaniments(std::nullopt);
    emit select(QVariant::fromValue(food));
}

void FoodAccompanimentsUIView::continueAdding()
{
    EnvironmentVariables::shared()->setSearchActive(true);
    setIsPresented(false);
}

void FoodAccompanimentsUIView::noThanks()
{
    emit select(QVariant());
    setIsPresented(false);
}

void FoodAccompanimentsUIView::setItems(const QList<FoodItem> &items)
{
    m_items = items;
    emit itemsChanged();
}

QVariantList FoodAccompanimentsUIView::itemsVariant() const
{
    QVariantList list;
    list.reserve(m_items.size());
    for (const FoodItem &food : m_items)
        list.append(QVariant::fromValue(food));
    return list;
}

void FoodAccompanimentsUIView::setItemsVariant(const QVariantList &items)
{
    QList<FoodItem> foods;
    for (const QVariant &item : items) {
        if (item.canConvert<FoodItem>())
            foods.append(item.value<FoodItem>());
    }
    setItems(foods);
}

void FoodAccompanimentsUIView::setPreview(Preview::Value preview)
{
    m_preview = preview;
    if (preview != Preview::NotPreview)
        m_items = {example::exampleSelectedFood(), example::exampleSelectedFood2()};
    emit itemsChanged();
}

void FoodAccompanimentsUIView::setIsPresented(bool presented)
{
    m_isPresented = presented;
    emit isPresentedChanged();
}

} // namespace nutrika
