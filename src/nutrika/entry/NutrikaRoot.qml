import QtQuick
import QtQuick.Templates as T
import Nutrika

// The module's root: one navigation stack over the calculator. Escape goes back one screen.
FocusScope {
    id: root

    property CarbCounterUIView calculator: CarbCounterUIView {}
    readonly property alias navigation: navigation
    // The food-data service key and origin for every request of the process; left empty, the ones
    // already set stay.
    property string apiKey
    property url serviceOrigin

    // The host's callback, for a host that embeds this item in QML.
    signal dismissCallback()

    Connections {
        target: root.calculator
        function onDismissCallback() { root.dismissCallback() }
    }

    Binding {
        target: EnvironmentVariables.serviceClient
        property: "apiKey"
        value: root.apiKey
        when: root.apiKey !== ""
        restoreMode: Binding.RestoreNone
    }

    Binding {
        target: EnvironmentVariables.serviceClient
        property: "origin"
        value: root.serviceOrigin
        when: String(root.serviceOrigin) !== ""
        restoreMode: Binding.RestoreNone
    }

    Keys.onEscapePressed: event => {
        if (navigation.depth > 1 && navigation.currentItem.presentationMode)
            navigation.currentItem.presentationMode.dismiss()
        else
            event.accepted = false
    }

    Rectangle {
        anchors.fill: parent
        color: Look.detailColor
    }

    // The stack from the templates, with the usual slide: the first screen need not load a style.
    T.StackView {
        id: navigation
        objectName: "navigation"
        anchors.fill: parent
        focus: true
        pushEnter: Transition { XAnimator { from: navigation.width; to: 0; duration: 400; easing.type: Easing.OutCubic } }
        pushExit: Transition { XAnimator { from: 0; to: -navigation.width; duration: 400; easing.type: Easing.OutCubic } }
        popEnter: Transition { XAnimator { from: -navigation.width; to: 0; duration: 400; easing.type: Easing.OutCubic } }
        popExit: Transition { XAnimator { from: 0; to: navigation.width; duration: 400; easing.type: Easing.OutCubic } }
        initialItem: CarbCounterScreen {
            uiView: root.calculator
            navigation: navigation
        }
    }
}
