import QtQuick
import Nutrika

// One calculator line: the food (bold) or meal name with what it counts under it, its amount and the
// remove cross. A tap or Enter opens the line; the cross removes it.
Rectangle {
    id: line

    property string title: ""
    property bool isFood: true
    property string amount: ""
    // The portion and quantity, or the meal's servings: what the amount was counted from.
    property string detail: ""
    // The host's net carbohydrates under the amount, or that fibre is unknown; "" when not asked for.
    property string note: ""
    // Where the amount ends, from the right edge; the remove button sits in that space.
    property real amountRightInset: 54

    signal opened()
    signal removed()

    implicitHeight: Math.max(titles.implicitHeight, amounts.implicitHeight, removeButton.height) + 20
    color: activeFocus ? "#e8f3f7" : "white"
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    // Name, portion and amount as one row.
    Accessible.name: title + (detail === "" ? "" : ", " + detail) + (amount === "" ? "" : ", " + amount)
                     + (note === "" ? "" : ", " + note)
    Accessible.onPressAction: opened()
    Keys.onReturnPressed: opened()
    Keys.onEnterPressed: opened()
    Keys.onDeletePressed: removed()

    TapHandler {
        onTapped: line.opened()
    }

    Column {
        id: titles
        anchors.left: parent.left
        anchors.right: amounts.left
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: 16
        anchors.rightMargin: 8
        spacing: 2

        Text {
            id: lineTitle
            objectName: "lineTitle"
            width: parent.width
            text: line.title
            font.bold: line.isFood
            font.pixelSize: Look.bodySize
            color: "black"
            wrapMode: Text.Wrap
        }
        Text {
            objectName: "lineDetail"
            width: parent.width
            visible: text !== ""
            text: line.detail
            font.pixelSize: Look.calloutSize - 1
            color: "#555555" // quieter than the name, and still 7:1 on white
            wrapMode: Text.Wrap
        }
    }
    Column {
        id: amounts
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.rightMargin: line.amountRightInset
        spacing: 2

        Text {
            id: lineAmount
            objectName: "lineAmount"
            anchors.right: parent.right
            width: Math.min(implicitWidth, 145)
            text: line.amount
            font.pixelSize: Look.bodySize
            color: "black"
            elide: Text.ElideRight
        }
        Text {
            objectName: "lineNote"
            anchors.right: parent.right
            width: Math.min(implicitWidth, 145)
            visible: text !== ""
            text: line.note
            font.pixelSize: Look.calloutSize - 1
            color: "#555555"
            wrapMode: Text.Wrap
        }
    }
    ActionButton {
        id: removeButton
        objectName: "removeButton"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.rightMargin: 6
        // A finger-sized target around the 25-point cross.
        width: 44
        height: 44
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
