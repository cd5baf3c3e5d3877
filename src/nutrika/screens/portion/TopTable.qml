import QtQuick
import QtQuick.Layouts
import Nutrika

// The preview's two rows: "Portion" with the portion's size (a link to change it in edit mode) and
// "Quantity" with the stepper, separated by light grey rules.
ColumnLayout {
    id: table

    required property AddToCalcPreviewUIView uiView
    property real rowHeight: 50

    signal portionTapped()

    spacing: 0

    Rectangle { Layout.fillWidth: true; implicitHeight: 1; color: Look.lightGray }
    RowLayout {
        Layout.fillWidth: true
        Layout.preferredHeight: table.rowHeight
        Layout.leftMargin: 16
        Layout.rightMargin: 16
        Text {
            Layout.fillWidth: true
            text: qsTr("Portion")
            font.pixelSize: Look.bodySize
            color: "black"
        }
        // A link in blue while editing; in add mode plain black text that takes no tap.
        ActionButton {
            readonly property bool editing: table.uiView.mode === AddToCalcPreviewUIView.Edit
            objectName: "portionLink"
            Layout.preferredWidth: contentItem.implicitWidth + 20
            Layout.preferredHeight: 44
            enabled: editing
            text: table.uiView.portionText
            textColor: editing ? "#0a5fd1" : "black"
            focusPolicy: editing ? Qt.StrongFocus : Qt.NoFocus
            Accessible.name: editing ? qsTr("Portion %1, change").arg(text) : qsTr("Portion %1").arg(text)
            onClicked: table.portionTapped()
        }
    }
    Rectangle { Layout.fillWidth: true; implicitHeight: 1; color: Look.lightGray }
    RowLayout {
        Layout.fillWidth: true
        Layout.preferredHeight: table.rowHeight
        Layout.leftMargin: 16
        Layout.rightMargin: 16
        Text {
            Layout.fillWidth: true
            text: qsTr("Quantity")
            font.pixelSize: Look.bodySize
            color: "black"
        }
        NumberStepperControl {
            objectName: "quantityStepper"
            accessibleName: qsTr("Quantity")
            min: 1
            max: 99999
            color: "white"
            value: table.uiView.quantity
            onUpdated: v => table.uiView.setLineQuantity(v)
        }
    }
    Rectangle { Layout.fillWidth: true; implicitHeight: 1; color: Look.lightGray }
}
