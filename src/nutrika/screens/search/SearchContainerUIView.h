#pragma once

#include <QObject>
#include <QStringList>
#include <QtQmlIntegration>

namespace nutrika {

using namespace Qt::Literals::StringLiterals;

/// State of the search container: the "Search" and "Meals" tabs. Its look is SearchContainerScreen.qml,
/// which builds the chosen tab's screen afresh on every switch.
class SearchContainerUIView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList options READ options CONSTANT)
    Q_PROPERTY(int tabOption READ tabOption WRITE setTabOption NOTIFY tabOptionChanged)

public:
    using QObject::QObject;

    [[nodiscard]] QStringList options() const { return {tr("Search"), tr("Meals")}; }
    [[nodiscard]] int tabOption() const { return m_tabOption; }
    void setTabOption(int tab);

    /// Runs each time the tab content appears: the search is never collecting meal ingredients.
    Q_INVOKABLE void contentAppeared();

signals:
    void tabOptionChanged();
    /// The content was shown: on a tab switch and on coming back from a pushed screen.
    void appeared();

private:
    int m_tabOption = 0;
};

} // namespace nutrika
