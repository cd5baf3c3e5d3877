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
        Text {
            visible: table.uiView.mode === AddToCalcPreviewUIView.AddNew
            padding: 10
            text: table.uiView.portionText
            font.pixelSize: Look.bodySize
            color: "black"
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("Portion %1").arg(text)
        }
        ActionButton {
            objectName: "portionLink"
            visible: table.uiView.mode === AddToCalcPreviewUIView.Edit
            implicitWidth: Math.max(60, contentItem.implicitWidth + 20)
            implicitHeight: 40
            text: table.uiView.portionText
            textColor: "#0a5fd1"
            Accessible.name: qsTr("Portion %1, change").arg(text)
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
            min: 1
            max: 99999
            color: "white"
            value: table.uiView.quantity
            onUpdated: v => table.uiView.setLineQuantity(v)
        }
    }
    Rectangle { Layout.fillWidth: true; implicitHeight: 1; color: Look.lightGray }
}
