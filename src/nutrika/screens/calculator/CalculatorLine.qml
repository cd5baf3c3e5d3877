import QtQuick
import QtQuick.Layouts
import Nutrika

// One calculator line: the food (bold) or meal name, its amount and the remove cross.
// A tap or Enter opens the line; the cross removes it.
Rectangle {
    id: line

    property string title: ""
    property bool isFood: true
    property string amount: ""

    signal opened()
    signal removed()

    implicitHeight: row.implicitHeight + 20
    color: activeFocus ? "#e8f3f7" : "white"
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: amount === "" ? title : title + ", " + amount
    Accessible.onPressAction: opened()
    Keys.onReturnPressed: opened()
    Keys.onEnterPressed: opened()
    Keys.onDeletePressed: removed()

    TapHandler {
        onTapped: line.opened()
    }

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        anchors.topMargin: 10
        anchors.bottomMargin: 10
        spacing: 8

        Text {
            objectName: "lineTitle"
            Layout.fillWidth: true
            text: line.title
            font.bold: line.isFood
            font.pixelSize: Look.bodySize
            color: "black"
            wrapMode: Text.Wrap
        }
        Text {
            objectName: "lineAmount"
            Layout.preferredWidth: Math.min(implicitWidth, 145)
            Layout.maximumWidth: 145
            text: line.amount
            font.pixelSize: Look.bodySize
            color: "black"
            elide: Text.ElideRight
        }
        ActionButton {
            objectName: "removeButton"
            Layout.preferredWidth: 25
            Layout.preferredHeight: 25
            symbol: "xmark.circle"
            text: qsTr("Remove %1").arg(line.title)
            textColor: "#c40000"
            pixelSize: 25
            onClicked: line.removed()
        }
    }

    EdgeBorder {
        anchors.fill: parent
        lineWidth: 1
        edges: [EdgeBorder.Bottom]
        color: Look.lightGray
    }
}
