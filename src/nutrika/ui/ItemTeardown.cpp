#include "ItemTeardown.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QQuickItem>
#include <QSet>

namespace nutrika {

namespace {

void hideTree(QObject *object, QSet<QObject *> &seen)
{
    if (!object || seen.contains(object))
        return;
    seen.insert(object);
    auto *item = qobject_cast<QQuickItem *>(object);
    // The parent first: its descendants then change their effective visibility once, here, while
    // everything is still alive, and not again below.
    if (item) {
        item->setVisible(false);
        for (QQuickItem *child : item->childItems())
            hideTree(child, seen);
    } else if (object->inherits("QQuickPopup")) {
        // A popup's own item lives outside the visual tree; its content item hangs from it.
        if (auto *content = object->property("contentItem").value<QQuickItem *>())
            hideTree(content->parentItem(), seen);
    }
    for (QObject *child : object->children())
        hideTree(child, seen);
}

class TeardownGuard : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::DeferredDelete)
            if (auto *item = qobject_cast<QQuickItem *>(watched))
                hideForTeardown(item);
        return false;
    }
};

} // namespace

void hideForTeardown(QQuickItem *root)
{
    QSet<QObject *> seen;
    hideTree(root, seen);
}

void guardItemTeardown()
{
    static QPointer<TeardownGuard> guard;
    QCoreApplication *app = QCoreApplication::instance();
    if (guard || !app)
        return;
    guard = new TeardownGuard(app);
    app->installEventFilter(guard);
}

} // namespace nutrika
