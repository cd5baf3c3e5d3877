#pragma once

#include <QObject>
#include <QTimer>
#include <QtQmlIntegration>

namespace nutrika {

/// The search bar's debounce: `debouncedText` takes each `searchText` that stayed unchanged for one
/// second, starting with the initial "". Every assignment is announced, also when the text is the same.
class TextFieldObserver : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(QString debouncedText READ debouncedText NOTIFY debouncedTextChanged)

public:
    static constexpr int debounceMs = 1000;

    explicit TextFieldObserver(QObject *parent = nullptr);

    [[nodiscard]] QString searchText() const { return m_searchText; }
    void setSearchText(const QString &text);
    [[nodiscard]] QString debouncedText() const { return m_debouncedText; }
    /// Delivers the current text now instead of after the pause, as when the user presses Enter.
    Q_INVOKABLE void settle();

signals:
    void searchTextChanged();
    void debouncedTextChanged();

private:
    void deliver();

    QString m_searchText;
    QString m_debouncedText;
    // Owned by the observer: destroying it drops a pending delivery.
    QTimer m_debounce;
};

} // namespace nutrika
