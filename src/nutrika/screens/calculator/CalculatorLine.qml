import QtQuick
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

    implicitHeight: Math.max(lineTitle.implicitHeight, lineAmount.implicitHeight, removeButton.height) + 20
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

    Text {
        id: lineTitle
        objectName: "lineTitle"
        anchors.left: parent.left
        anchors.right: lineAmount.left
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: 16
        anchors.rightMargin: 8
        text: line.title
        font.bold: line.isFood
        font.pixelSize: Look.bodySize
        color: "black"
        wrapMode: Text.Wrap
    }
    Text {
        id: lineAmount
        objectName: "lineAmount"
        anchors.right: removeButton.left
        anchors.verticalCenter: parent.verticalCenter
        anchors.rightMargin: 8
        width: Math.min(implicitWidth, 145)
        text: line.amount
        font.pixelSize: Look.bodySize
        color: "black"
        elide: Text.ElideRight
    }
    ActionButton {
        id: removeButton
        objectName: "removeButton"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.rightMargin: 16
        width: 25
        height: 25
        symbol: "xmark.circle"
        text: qsTr("Remove %1").arg(line.title)
        textColor: "#c40000"
        pixelSize: 25
        onClicked: line.removed()
    }

    EdgeBorder {
        anchors.fill: parent
        lineWidth: 1
        edges: [EdgeBorder.Bottom]
        color: Look.lightGray
    }
}
