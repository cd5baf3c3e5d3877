import QtQuick
import Nutrika

// Qt 6.4's linter knows neither 64-bit integers, nor the types of components that reach ids outside
// them (ComponentBehavior: Bound needs 6.5), nor Qt.callLater; the engine reads all of these well.
// qmllint disable

// One entry of the navigation stack, bound to a flag. While `active` it pushes its destination screen;
// when `active` turns false it pops that screen and everything above it. A link created while its flag
// is already set pushes as soon as the stack can take it, as a fresh stack would. Going back from the
// screen calls dismiss(): a two-way link emits dismissed() so its owner clears the flag; a read-only
// link (writesBack false) pops by itself and waits for the flag to be written again (rearm()).
QtObject {
    id: link

    required property NavigationStack navigation
    property bool active: false
    // A Destinations screen.
    property int destination: -1
    // Tests may push a file of their own.
    property url destinationUrl: destination < 0 ? "" : Destinations.screen(destination)
    // Extra initial properties of the pushed screen.
    property var properties: ({})
    property bool writesBack: true
    // The pushed screen while it is on the stack.
    property Item screen: null
    property bool backedOut: false
    // A push in progress changes the stack's current item, which must not start a second push.
    property bool pushing: false

    signal dismissed()

    function dismiss() {
        if (writesBack) {
            dismissed()
            return
        }
        backedOut = true
        popScreen()
    }

    // The flag was written again while it stays set: follow the link anew.
    function rearm() {
        backedOut = false
        sync()
    }

    function popScreen() {
        if (!screen)
            return
        const index = screen.NavigationStack.index
        screen = null
        if (index > 0)
            navigation.pop(navigation.get(index - 1))
    }

    // Brings the stack in line with `active`; waits while a transition runs and until the stack has
    // finished showing its first screen.
    function sync() {
        if (!navigation || navigation.busy || !navigation.currentItem || pushing)
            return
        if (screen && screen.NavigationStack.index < 0) {
            // A link below this one popped the screen: it stays closed until the flag is written again.
            screen = null
            backedOut = true
            if (writesBack)
                dismissed()
            return
        }
        if (active && !screen && !backedOut && String(destinationUrl) !== "") {
            const initial = Object.assign({ navigation: navigation, presentationMode: link }, properties)
            pushing = true
            screen = navigation.push(destinationUrl, initial)
            pushing = false
        } else if (!active && screen) {
            popScreen()
        }
    }

    onActiveChanged: {
        if (!active)
            backedOut = false
        sync()
    }
    Component.onCompleted: sync()

    property Connections stackWatch: Connections {
        target: link.navigation
        function onBusyChanged() { link.sync() }
        // The stack announces its new screen before it has finished pushing it.
        function onCurrentItemChanged() { Qt.callLater(link.sync) }
    }
}
