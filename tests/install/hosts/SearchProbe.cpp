#include "SearchProbe.h"

#include <cstdio>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTimer>

namespace {

QQuickItem *findShown(QQuickItem *item, const QString &name)
{
    if (item->objectName() == name && item->isVisible())
        return item;
    for (QQuickItem *child : item->childItems()) {
        if (QQuickItem *found = findShown(child, name))
            return found;
    }
    return nullptr;
}

void type(QQuickItem *field, const QString &text)
{
    field->forceActiveFocus();
    for (const QChar c : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, QString(c));
        QCoreApplication::sendEvent(field->window(), &press);
        QCoreApplication::sendEvent(field->window(), &release);
    }
}

void finish(int status, const QString &message)
{
    std::fprintf(status == 0 ? stdout : stderr, "%s\n", qPrintable(message));
    QCoreApplication::exit(status);
}

} // namespace

void searchAndExit(QQuickItem *root, const QString &text)
{
    auto *poll = new QTimer(root);
    const QDeadlineTimer deadline(30000);
    QObject::connect(poll, &QTimer::timeout, root, [root, text, deadline, typed = false]() mutable {
        // Pop-ups such as the error alert live in the window's overlay, outside the root.
        if (QQuickItem *alert = findShown(root->window()->contentItem(), QStringLiteral("errorBody")))
            return finish(1, QStringLiteral("the search failed: ") + alert->property("text").toString());
        if (deadline.hasExpired())
            return finish(1, QStringLiteral("no search results within 30 s"));
        if (!typed) {
            if (QQuickItem *field = findShown(root, QStringLiteral("searchField"))) {
                type(field, text);
                typed = true;
            }
            return;
        }
        // The count line reads "0 items ..." until the service's reply arrives.
        static const QRegularExpression found(QStringLiteral("^[1-9][0-9]* items? matching your search$"));
        if (QQuickItem *count = findShown(root, QStringLiteral("countLine")); count) {
            if (const QString line = count->property("text").toString(); found.match(line).hasMatch())
                finish(0, line);
        }
    });
    poll->start(50);
}
