import QtQuick
import QtQuick.Controls.Basic
import Nutrika

// A framed screen for the navigation tests, pushed the way the module's screens are.
Item {
    id: pushed
    property StackView navigation
    property var presentationMode: null
    property string title: "Pushed"

    ViewContainer {
        anchors.fill: parent
        titleText: pushed.title
        backButton: true
        presentationMode: pushed.presentationMode
        Text { anchors.centerIn: parent; text: "Content" }
    }
}
