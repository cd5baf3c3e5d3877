#include "TextFieldObserver.h"

namespace nutrika {

TextFieldObserver::TextFieldObserver(QObject *parent) : QObject(parent)
{
    // A coarse timer may fire up to 5% early; the pause is a whole second.
    m_debounce.setTimerType(Qt::PreciseTimer);
    m_debounce.setSingleShot(true);
    m_debounce.setInterval(debounceMs);
    connect(&m_debounce, &QTimer::timeout, this, &TextFieldObserver::deliver);
    // The pipeline receives the current value at once, so the initial "" is delivered after a second too.
    m_debounce.start();
}

void TextFieldObserver::setSearchText(const QString &text)
{
    m_searchText = text;
    emit searchTextChanged();
    m_debounce.start();
}

void TextFieldObserver::settle()
{
    // The pending delivery would only repeat this text a second later.
    m_debounce.stop();
    deliver();
}

void TextFieldObserver::deliver()
{
    m_debouncedText = m_searchText;
    emit debouncedTextChanged();
}

} // namespace nutrika
