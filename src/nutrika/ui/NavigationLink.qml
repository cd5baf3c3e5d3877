import QtQuick
import QtQuick.Controls.Basic
import Nutrika

// One entry of the navigation stack, bound to a flag. While `active` it pushes the screen named by
// `destination` (a screen type such as "SearchContainerUIView"); when `active` turns false it pops that
// screen and everything above it. Going back from the screen calls dismiss(): a two-way link emits
// dismissed() so its owner clears the flag; a read-only link (writesBack false) pops by itself.
QtObject {
    id: link

    required property StackView navigation
    property bool active: false
    property string destination: ""
    property url destinationUrl: Destinations.screen(destination)
    // Extra initial properties of the pushed screen.
    property var properties: ({})
    property bool writesBack: true
    // The pushed screen while it is on the stack.
    property Item screen: null
    property bool backedOut: false

    signal dismissed()

    function dismiss() {
        if (writesBack) {
            dismissed()
            return
        }
        backedOut = true
        popScreen()
    }

    function popScreen() {
        if (!screen)
            return
        const below = navigation.get(screen.StackView.index - 1)
        screen = null
        navigation.pop(below)
    }

    // Brings the stack in line with `active`; waits while a transition runs.
    function sync() {
        if (!navigation || navigation.busy)
            return
        if (active && !screen && !backedOut && String(destinationUrl) !== "") {
            const initial = Object.assign({ navigation: navigation, presentationMode: link }, properties)
            screen = navigation.push(destinationUrl, initial)
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

    property Connections busyWatch: Connections {
        target: link.navigation
        function onBusyChanged() { link.sync() }
    }
}
