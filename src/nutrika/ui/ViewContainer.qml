import QtQuick
import Nutrika

// The frame of every full screen: the title bar with the optional back and "Close" row, then the content.
// Anchors rather than layouts: this frame is on the first screen, which should not wait for them.
Item {
    id: frame

    // The title, or undefined for an empty bar of the same height.
    property var titleText
    property bool backButton: false
    // The pushing link of this screen; its dismiss() goes back one level.
    property var presentationMode: null
    default property alias content: body.data

    Rectangle {
        id: titleBar
        objectName: "titleBar"
        width: parent.width
        height: implicitHeight
        implicitHeight: Math.max(title.implicitHeight, backRow.active ? backRow.implicitHeight : 0) + 10
        color: Look.detailColor

        Text {
            id: title
            objectName: "title"
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.top: parent.top
            padding: 5
            text: frame.titleText === undefined || frame.titleText === null ? "" : frame.titleText
            font.pixelSize: Look.headlineSize
            font.bold: true
            color: "white"
            Accessible.role: Accessible.TitleBar
            Accessible.name: text
        }

        // Built only where it shows: the calculator has neither back nor "Close".
        Loader {
            id: backRow
            objectName: "backRow"
            active: frame.backButton
            visible: active
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.verticalCenter: title.verticalCenter
            anchors.leftMargin: 15
            anchors.rightMargin: 15
            sourceComponent: Item {
                implicitHeight: 44

                ActionButton {
                    objectName: "backButton"
                    symbol: "chevron.left"
                    text: qsTr("Back")
                    textColor: "white"
                    pixelSize: 28
                    width: 44
                    height: 44
                    // Qt 6.4's linter cannot follow ids out of a component (that needs 6.5).
                    // qmllint disable unqualified
                    onClicked: if (frame.presentationMode) frame.presentationMode.dismiss()
                    // qmllint enable unqualified
                }
                ActionButton {
                    objectName: "closeButton"
                    anchors.right: parent.right
                    text: qsTr("Close")
                    textColor: "white"
                    width: 64
                    height: 44
                    onClicked: EnvironmentVariables.dismiss()
                }
            }
        }
    }

    Rectangle {
        id: body
        y: titleBar.height
        width: parent.width
        height: parent.height - titleBar.height
        color: "white"
    }
}
