import QtQuick
import QtQuick.Layouts
import Nutrika

// The frame of every full screen: the title bar with the optional back and "Close" row, then the content.
ColumnLayout {
    id: frame

    // The title, or undefined for an empty bar of the same height.
    property var titleText
    property bool backButton: false
    // The pushing link of this screen; its dismiss() goes back one level.
    property var presentationMode: null
    default property alias content: body.data

    spacing: 0

    Rectangle {
        id: titleBar
        objectName: "titleBar"
        Layout.fillWidth: true
        implicitHeight: Math.max(title.implicitHeight, backRow.visible ? backRow.implicitHeight : 0) + 10
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

        RowLayout {
            id: backRow
            objectName: "backRow"
            visible: frame.backButton
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.verticalCenter: title.verticalCenter
            anchors.leftMargin: 15
            anchors.rightMargin: 15

            ActionButton {
                objectName: "backButton"
                symbol: "chevron.left"
                text: qsTr("Back")
                textColor: "white"
                pixelSize: 28
                implicitWidth: 44
                implicitHeight: 44
                onClicked: if (frame.presentationMode) frame.presentationMode.dismiss()
            }
            Item { Layout.fillWidth: true }
            ActionButton {
                objectName: "closeButton"
                text: qsTr("Close")
                textColor: "white"
                implicitWidth: 64
                implicitHeight: 44
                onClicked: EnvironmentVariables.dismiss()
            }
        }
    }

    Rectangle {
        id: body
        Layout.fillWidth: true
        Layout.fillHeight: true
        color: "white"
    }
}
