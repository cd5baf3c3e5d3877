#pragma once

class QQuickItem;

namespace nutrika {

/// Qt 6.4 unparents the children of each item it destroys. A child that was hidden only through its
/// parent (a popped screen, a closed popup, an unloaded tab) turns visible again in the middle of the
/// teardown, and with a screen reader listening Qt Quick Controls then reaches an item already freed.
/// Hiding every item of a tree, each one explicitly, before the tree goes keeps them all hidden.
void hideForTeardown(QQuickItem *root);

/// Hides each Qt Quick item's tree before the event loop deletes it (screens popped from a stack,
/// Loader content, released delegates). Installed once per application; later calls do nothing.
void guardItemTeardown();

} // namespace nutrika
