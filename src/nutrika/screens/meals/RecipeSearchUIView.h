#pragma once

#include "DiaryEntry.h"
#include "Preview.h"
#include "RecipeItem.h"

#include <QObject>
#include <QtQmlIntegration>
#include <QVariantList>

namespace nutrika {

/// State of the saved-meal list: refreshed from the store each time it appears and narrowed by name.
/// Its look is RecipeSearchScreen.qml.
class RecipeSearchUIView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString debouncedText READ debouncedText NOTIFY debouncedTextChanged)
    Q_PROPERTY(bool isLoading READ isLoading CONSTANT)
    /// Rises on every appearance; the list rebuilds its rows when it changes.
    Q_PROPERTY(int counter READ counter NOTIFY counterChanged)
    /// The listed meals (recipeItem values): all of them, or those whose name contains the text.
    Q_PROPERTY(QVariantList meals READ meals NOTIFY mealsChanged)
    /// No meal is saved at all (whatever the filter).
    Q_PROPERTY(bool noSavedMeals READ noSavedMeals NOTIFY mealsChanged)
    Q_PROPERTY(nutrika::Preview::Value preview READ preview WRITE setPreview NOTIFY previewChanged)

public:
    explicit RecipeSearchUIView(QObject *parent = nullptr);

    /// Loads the saved meals into the session and raises `counter`.
    Q_INVOKABLE void appear();
    /// The settled filter text; matching is by exact, case-sensitive substring.
    Q_INVOKABLE void onFinishTyping(const QString &text);

    /// The line "Create Meal" opens the editor on: id 123, quantity 1, a meal "New Meal" never saved
    /// (id -1), without ingredients, of one serving.
    [[nodiscard]] static DiaryEntryPtr newMealEntry();
    /// The line a saved meal opens the editor on: id 123, that meal, quantity 1.
    [[nodiscard]] static DiaryEntryPtr savedMealEntry(const RecipeItem &meal);

    [[nodiscard]] const QString &debouncedText() const { return m_debouncedText; }
    [[nodiscard]] bool isLoading() const { return false; }
    [[nodiscard]] int counter() const { return m_counter; }
    [[nodiscard]] QList<RecipeItem> filteredMeals() const;
    [[nodiscard]] QVariantList meals() const;
    [[nodiscard]] bool noSavedMeals() const;
    [[nodiscard]] Preview::Value preview() const { return m_preview; }
    void setPreview(Preview::Value preview);

signals:
    void debouncedTextChanged();
    void counterChanged();
    void mealsChanged();
    void previewChanged();

private:
    QString m_debouncedText;
    int m_counter = 0;
    Preview::Value m_preview = Preview::NotPreview;
};

} // namespace nutrika
