import QtQuick
import QtQuick.Layouts
import Nutrika

// One ingredient: its description with quantity and portion, its weight, and in edit mode the cross
// that removes it (also the Delete key).
Rectangle {
    id: row

    property string label: ""
    property string weight: ""
    property bool removable: false

    signal removed()

    implicitHeight: layout.implicitHeight + 20
    color: activeFocus ? "#e8f3f7" : "white"
    activeFocusOnTab: true
    Accessible.role: Accessible.ListItem
    Accessible.name: label.replace("\n", " ") + ", " + weight
    Keys.onDeletePressed: if (removable) removed()

    RowLayout {
        id: layout
        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        anchors.topMargin: 10
        anchors.bottomMargin: 10
        spacing: 8

        Text {
            objectName: "ingredientLabel"
            Layout.fillWidth: true
            text: row.label
            font.pixelSize: Look.bodySize
            color: "black"
            wrapMode: Text.Wrap
        }
        Text {
            objectName: "ingredientWeight"
            text: row.weight
            font.pixelSize: Look.bodySize
            color: "black"
        }
        ActionButton {
            objectName: "removeIngredientButton"
            visible: row.removable
            // A finger-sized target around the 25-point cross; the total row keeps the same column.
            Layout.preferredWidth: 44
            Layout.preferredHeight: 44
            symbol: "xmark.circle"
            text: qsTr("Remove %1").arg(row.label.split("\n")[0])
            textColor: "#c40000"
            pixelSize: 25
            onClicked: row.removed()
        }
    }

    EdgeBorder {
        anchors.fill: parent
        lineWidth: 1
        edges: [EdgeBorder.Bottom]
        color: Look.lightGray
    }
}
