#include "ItemSearchUIView.h"

#include "EnvironmentVariables.h"
#include "FilterOptionsRequest.h"
#include "HostSettings.h"
#include "MealNutrients.h"
#include "RecentFoods.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

ItemSearchUIView::ItemSearchUIView(QObject *parent) : QObject(parent)
{
    connect(this, &ItemSearchUIView::debouncedTextChanged, this, &ItemSearchUIView::countTextChanged);
    connect(this, &ItemSearchUIView::numSearchResultsChanged, this, &ItemSearchUIView::countTextChanged);
}

void ItemSearchUIView::onFinishTyping(const QString &text)
{
    if (text == m_debouncedText)
        return;
    m_debouncedText = text;
    ++m_textGeneration;
    emit debouncedTextChanged();
    if (text.isEmpty())
        return;
    restartSearch();
    getFilterOptions();
}

void ItemSearchUIView::restartSearch()
{
    ++m_generation;
    m_pageInFlight.reset();
    m_offset = 0;
    emit offsetChanged();
    loadSearchData();
}

void ItemSearchUIView::loadSearchData()
{
    if (m_pageInFlight == m_offset)
        return;
    m_pageInFlight = m_offset;
    setLoading(true);
    const FoodSearchQuery query{m_debouncedText, m_offset,
                                m_brandFilterValue == ALL_BRANDS ? QString() : m_brandFilterValue,
                                m_categoryFilterValue == ALL_CATEGORIES ? QString() : m_categoryFilterValue};
    const bool filtered = !query.foodBrand.isEmpty() || !query.foodCategory.isEmpty();
    requestFoodSearch(
        *EnvironmentVariables::shared()->serviceClient(), query, this,
        [this, generation = m_generation, filtered](const ServiceResult<FoodSearchPage> &result) {
            if (generation != m_generation)
                return;
            m_pageInFlight.reset();
            setLoading(false);
            if (const auto *failure = std::get_if<ServiceFailure>(&result)) {
                const FailureMessage message = failureMessage(*failure);
                showError(message.body, message.title);
                return;
            }
            applyPage(std::get<FoodSearchPage>(result), filtered);
        });
}

void ItemSearchUIView::applyPage(const FoodSearchPage &page, bool filtered)
{
    // A first page replaces the lists when it arrives, so the old results stay visible until then.
    if (m_offset == 0)
        m_results.clear();
    m_countFiltered = filtered;
    m_numSearchResults = page.count;
    emit numSearchResultsChanged();
    m_results.append(page.generic, page.branded);
    m_offset += FOOD_SEARCH_PAGE_SIZE;
    emit offsetChanged();
}

void ItemSearchUIView::getFilterOptions()
{
    requestFilterOptions(*EnvironmentVariables::shared()->serviceClient(), m_debouncedText, this,
                         [this, generation = m_textGeneration](const std::optional<FilterOptions> &options) {
                             if (generation != m_textGeneration || !options)
                                 return;
                             m_brandOptions = QStringList{ALL_BRANDS} + options->brands;
                             m_categoryOptions = QStringList{ALL_CATEGORIES} + options->categories;
                             emit brandOptionsChanged();
                             emit categoryOptionsChanged();
                         });
}

void ItemSearchUIView::rowAppeared(bool branded, int indexInSection)
{
    const qsizetype generic = m_results.nonBranded().size();
    const qsizetype brandedCount = m_results.branded().size();
    const bool lastRow =
        branded ? indexInSection >= brandedCount - 1 : indexInSection >= generic - 1 && brandedCount == 0;
    if (lastRow)
        loadSearchData();
}

void ItemSearchUIView::filterDone()
{
    restartSearch();
}

void ItemSearchUIView::selectRow(int row)
{
    const FoodItem *food = m_results.foodAt(row);
    if (!food)
        return;
    m_selectedFood = *food;
    emit selectedFoodChanged();
    EnvironmentVariables::shared()->setPortionActive(food->id);
}

void ItemSearchUIView::showError(const QString &body, const QString &title)
{
    m_errorMessageBody = body;
    m_errorMessageTitle = title;
    emit errorMessageChanged();
    setShowErrorMessage(true);
}

QString ItemSearchUIView::countText() const
{
    if (m_debouncedText.isEmpty())
        return {};
    return tr("%1 %2 matching your search")
        .arg(QString::number(m_numSearchResults), m_numSearchResults == 1 ? tr("item") : tr("items"));
}

QString ItemSearchUIView::filterResetHint() const
{
    if (m_debouncedText.isEmpty() || m_numSearchResults != 0 || !m_countFiltered)
        return {};
    return tr("A brand or category filter is set. Choose “%1” or “%2” to search without it.")
        .arg(QCoreApplication::translate("ItemSearchUIView", ALL_BRANDS.toUtf8().constData()),
             QCoreApplication::translate("ItemSearchUIView", ALL_CATEGORIES.toUtf8().constData()));
}

void ItemSearchUIView::setBrandFilterValue(const QString &value)
{
    m_brandFilterValue = value;
    emit brandFilterValueChanged();
}

void ItemSearchUIView::setCategoryFilterValue(const QString &value)
{
    m_categoryFilterValue = value;
    emit categoryFilterValueChanged();
}

void ItemSearchUIView::setShowErrorMessage(bool show)
{
    m_showErrorMessage = show;
    emit showErrorMessageChanged();
}

void ItemSearchUIView::setLoading(bool loading)
{
    m_isLoading = loading;
    emit isLoadingChanged();
}

void ItemSearchUIView::loadRecentFoods()
{
    m_recentFoods.clear();
    if (HostSettings::shared()->recentFoods() && !EnvironmentVariables::shared()->editRecipeActive()) {
        for (const RecentFood &recent : nutrika::recentFoods()) {
            m_recentFoods.append(QVariantMap{{u"food"_s, QVariant::fromValue(recent.food)},
                                             {u"portion"_s, QVariant::fromValue(recent.portion)},
                                             {u"title"_s, recent.food.description},
                                             {u"detail"_s, portionText(recent.portion)}});
        }
    }
    emit recentFoodsChanged();
}

} // namespace nutrika
