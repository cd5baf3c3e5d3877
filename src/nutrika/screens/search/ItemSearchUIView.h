#pragma once

#include "FoodSearchRequest.h"
#include "SearchResultsModel.h"

#include <optional>
#include <QObject>
#include <QStringList>
#include <QtQmlIntegration>
#include <QVariantList>

namespace nutrika {

using namespace Qt::Literals::StringLiterals;

/// State and operations of the food search: the settled text, the pages of generic and branded results,
/// the brand and category filters and the error alert. Its look is ItemSearchScreen.qml.
class ItemSearchUIView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString debouncedText READ debouncedText NOTIFY debouncedTextChanged)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged)
    /// A new search is on its way: the rows shown belong to the one before and are about to be replaced.
    Q_PROPERTY(bool resultsStale READ resultsStale NOTIFY isLoadingChanged)
    Q_PROPERTY(nutrika::SearchResultsModel *results READ results CONSTANT)
    Q_PROPERTY(qint64 numSearchResults READ numSearchResults NOTIFY numSearchResultsChanged)
    /// "N items matching your search"; "" while there is no text.
    Q_PROPERTY(QString countText READ countText NOTIFY countTextChanged)
    /// Under a count of 0 from a search narrowed by brand or category, how to widen it; "" otherwise.
    Q_PROPERTY(QString filterResetHint READ filterResetHint NOTIFY countTextChanged)
    Q_PROPERTY(QStringList brandOptions READ brandOptions NOTIFY brandOptionsChanged)
    Q_PROPERTY(QStringList categoryOptions READ categoryOptions NOTIFY categoryOptionsChanged)
    Q_PROPERTY(QString brandFilterValue READ brandFilterValue WRITE setBrandFilterValue NOTIFY
                   brandFilterValueChanged)
    Q_PROPERTY(QString categoryFilterValue READ categoryFilterValue WRITE setCategoryFilterValue NOTIFY
                   categoryFilterValueChanged)
    Q_PROPERTY(
        bool showErrorMessage READ showErrorMessage WRITE setShowErrorMessage NOTIFY showErrorMessageChanged)
    Q_PROPERTY(QString errorMessageTitle READ errorMessageTitle NOTIFY errorMessageChanged)
    Q_PROPERTY(QString errorMessageBody READ errorMessageBody NOTIFY errorMessageChanged)
    Q_PROPERTY(qint64 offset READ offset NOTIFY offsetChanged)
    /// The food whose row was tapped last; its portion screen is pushed while portionActive names it.
    Q_PROPERTY(nutrika::FoodItem selectedFood READ selectedFood NOTIFY selectedFoodChanged)
    /// When the host lists them, the foods lately added to the calculator: {food, portion, title, detail}.
    Q_PROPERTY(QVariantList recentFoods READ recentFoods NOTIFY recentFoodsChanged)

public:
    // Filter values as well as labels: the screens show them through qsTranslate("ItemSearchUIView", …).
    static inline const QString ALL_BRANDS =
        QString::fromUtf8(QT_TRANSLATE_NOOP("ItemSearchUIView", "All Brands"));
    static inline const QString ALL_CATEGORIES =
        QString::fromUtf8(QT_TRANSLATE_NOOP("ItemSearchUIView", "All Categories"));

    explicit ItemSearchUIView(QObject *parent = nullptr);

    /// A settled search text: a new non-empty text starts again at the first page and asks for the
    /// filter options; the same text again, or an empty one, requests nothing.
    Q_INVOKABLE void onFinishTyping(const QString &text);
    /// Asks for the page at `offset` with the current text and filters.
    Q_INVOKABLE void loadSearchData();
    /// Asks for the brands and categories of the current text.
    Q_INVOKABLE void getFilterOptions();
    /// A result row came into view; the last row of the section that pages asks for the next page.
    Q_INVOKABLE void rowAppeared(bool branded, int indexInSection);
    /// "Done" on a filter sheet: the search starts again at the first page.
    Q_INVOKABLE void filterDone();
    /// Opens the portion screen for the food at `row` of the results.
    Q_INVOKABLE void selectRow(int row);
    void showError(const QString &body, const QString &title);
    /// Reads the recent foods again; none while a meal collects its ingredients or the host lists none.
    Q_INVOKABLE void loadRecentFoods();
    [[nodiscard]] const QVariantList &recentFoods() const { return m_recentFoods; }

    [[nodiscard]] const QString &debouncedText() const { return m_debouncedText; }
    [[nodiscard]] bool isLoading() const { return m_isLoading; }
    [[nodiscard]] bool resultsStale() const { return m_isLoading && m_pageInFlight == 0; }
    [[nodiscard]] SearchResultsModel *results() { return &m_results; }
    [[nodiscard]] const QList<FoodItem> &nonBrandedResults() const { return m_results.nonBranded(); }
    [[nodiscard]] const QList<FoodItem> &brandedResults() const { return m_results.branded(); }
    [[nodiscard]] qint64 numSearchResults() const { return m_numSearchResults; }
    [[nodiscard]] QString countText() const;
    [[nodiscard]] QString filterResetHint() const;
    [[nodiscard]] const QStringList &brandOptions() const { return m_brandOptions; }
    [[nodiscard]] const QStringList &categoryOptions() const { return m_categoryOptions; }
    [[nodiscard]] const QString &brandFilterValue() const { return m_brandFilterValue; }
    void setBrandFilterValue(const QString &value);
    [[nodiscard]] const QString &categoryFilterValue() const { return m_categoryFilterValue; }
    void setCategoryFilterValue(const QString &value);
    [[nodiscard]] bool showErrorMessage() const { return m_showErrorMessage; }
    void setShowErrorMessage(bool show);
    [[nodiscard]] const QString &errorMessageTitle() const { return m_errorMessageTitle; }
    [[nodiscard]] const QString &errorMessageBody() const { return m_errorMessageBody; }
    [[nodiscard]] qint64 offset() const { return m_offset; }
    [[nodiscard]] const FoodItem &selectedFood() const { return m_selectedFood; }

signals:
    void recentFoodsChanged();
    void debouncedTextChanged();
    void isLoadingChanged();
    void numSearchResultsChanged();
    void countTextChanged();
    void brandOptionsChanged();
    void categoryOptionsChanged();
    void brandFilterValueChanged();
    void categoryFilterValueChanged();
    void showErrorMessageChanged();
    void errorMessageChanged();
    void offsetChanged();
    void selectedFoodChanged();

private:
    void restartSearch();
    void setLoading(bool loading);
    void applyPage(const FoodSearchPage &page, bool filtered);

    QString m_debouncedText;
    bool m_isLoading = false;
    SearchResultsModel m_results;
    qint64 m_numSearchResults = 0;
    // The search that gave the count was narrowed by a brand or a category.
    bool m_countFiltered = false;
    QStringList m_brandOptions;
    QStringList m_categoryOptions;
    QString m_brandFilterValue;
    QString m_categoryFilterValue;
    bool m_showErrorMessage = false;
    QString m_errorMessageTitle = u"Error"_s;
    QString m_errorMessageBody = u"An Unknown Error Has Occoured"_s;
    qint64 m_offset = 0;
    FoodItem m_selectedFood{QString(), -1, -1, QString(), false};
    // Replies to an earlier text or filter choice are dropped, so a slow old reply never overwrites
    // newer results; and a page already on its way is not asked for twice.
    quint64 m_generation = 0;
    // The filter options depend on the text alone: only a new text makes their reply stale.
    quint64 m_textGeneration = 0;
    std::optional<qint64> m_pageInFlight;
    QVariantList m_recentFoods;
};

} // namespace nutrika
