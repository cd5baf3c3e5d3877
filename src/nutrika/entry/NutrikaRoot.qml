import QtQuick
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

    NavigationStack {
        id: navigation
        objectName: "navigation"
        anchors.fill: parent
        focus: true
        initialItem: CarbCounterScreen {
            uiView: root.calculator
            navigation: navigation
        }
    }
}
