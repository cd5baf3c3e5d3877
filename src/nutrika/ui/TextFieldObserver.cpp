#include "TextFieldObserver.h"

namespace nutrika {

TextFieldObserver::TextFieldObserver(QObject *parent) : QObject(parent)
{
    // A coarse timer may fire up to 5% early; the pause is a whole second.
    m_debounce.setTimerType(Qt::PreciseTimer);
    m_debounce.setSingleShot(true);
    m_debounce.setInterval(debounceMs);
    connect(&m_debounce, &QTimer::timeout, this, [this] {
        m_debouncedText = m_searchText;
        emit debouncedTextChanged();
    });
    // The pipeline receives the current value at once, so the initial "" is delivered after a second too.
    m_debounce.start();
}

void TextFieldObserver::setSearchText(const QString &text)
{
    m_searchText = text;
    emit searchTextChanged();
    m_debounce.start();
}

} // namespace nutrika
