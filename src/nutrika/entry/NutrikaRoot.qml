import QtQuick
import QtQuick.Controls.Basic
import Nutrika

// The module's root: one navigation stack over the calculator. Escape goes back one screen.
FocusScope {
    id: root

    property CarbCounterUIView calculator: CarbCounterUIView {}
    readonly property alias navigation: navigation

    // The host's callback, for a host that embeds this item in QML.
    signal dismissCallback()

    Connections {
        target: root.calculator
        function onDismissCallback() { root.dismissCallback() }
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

    StackView {
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
