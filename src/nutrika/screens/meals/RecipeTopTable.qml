import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Nutrika

// The meal table: "Name", "Servings" and "1 portion (g)", labels in a light grey column. The name and
// servings can be changed only while the meal is being composed.
ColumnLayout {
    id: table

    required property CreateRecipeUIView uiView
    property real rowHeight: 50
    property real labelWidth: 130

    spacing: 0

    component LabelCell: Rectangle {
        property alias text: labelText.text
        property real cellWidth: 130
        Layout.preferredWidth: cellWidth
        Layout.fillHeight: true
        color: Look.lightGray
        Text {
            id: labelText
            anchors.fill: parent
            anchors.leftMargin: 10
            anchors.rightMargin: 6
            verticalAlignment: Text.AlignVCenter
            wrapMode: Text.WordWrap
            font.pixelSize: Look.bodySize
            font.bold: true
            color: "black"
        }
    }
    component Rule: Rectangle { Layout.fillWidth: true; implicitHeight: 1; color: Look.lightGray }

    Rule {}
    RowLayout {
        Layout.fillWidth: true
        Layout.fillHeight: false
        Layout.preferredHeight: table.rowHeight
        spacing: 0
        LabelCell { cellWidth: table.labelWidth; text: qsTr("Name") }
        TextField {
            objectName: "nameField"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.leftMargin: 10
            Layout.rightMargin: 10
            leftPadding: 0 // the name starts where the other rows' values start
            enabled: table.uiView.composing
            text: table.uiView.recipeName
            placeholderText: qsTr("Meal Name")
            font.pixelSize: Look.bodySize
            color: "black"
            background: null
            onTextEdited: table.uiView.recipeName = text
            // Outside composing the name is only shown: a screen reader must not offer to edit it.
            Accessible.role: enabled ? Accessible.EditableText : Accessible.StaticText
            Accessible.readOnly: !enabled
            Accessible.name: qsTr("Meal name")
        }
    }
    Rule {}
    RowLayout {
        Layout.fillWidth: true
        Layout.fillHeight: false
        Layout.preferredHeight: table.rowHeight
        spacing: 0
        LabelCell { cellWidth: table.labelWidth; text: qsTr("Servings") }
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true
            NumberStepperControl {
                objectName: "servingsStepper"
                visible: table.uiView.composing
                anchors.verticalCenter: parent.verticalCenter
                anchors.right: parent.right
                anchors.rightMargin: 10
                min: 1
                max: 99999
                color: "white"
                value: table.uiView.servings
                onUpdated: v => table.uiView.setServings(v)
                accessibleName: qsTr("Servings")
            }
            Text {
                objectName: "servingsText"
                visible: !table.uiView.composing
                anchors.fill: parent
                anchors.leftMargin: 10
                verticalAlignment: Text.AlignVCenter
                text: table.uiView.servings
                font.pixelSize: Look.bodySize
                color: "black"
                Accessible.role: Accessible.StaticText
                Accessible.name: qsTr("Servings %1").arg(text)
            }
        }
    }
    Rule {}
    RowLayout {
        Layout.fillWidth: true
        Layout.fillHeight: false
        Layout.preferredHeight: table.rowHeight
        spacing: 0
        LabelCell { cellWidth: table.labelWidth; text: qsTr("1 portion (g)") }
        Text {
            objectName: "onePortion"
            Layout.fillWidth: true
            Layout.leftMargin: 10
            text: table.uiView.onePortionText
            font.pixelSize: Look.bodySize
            color: "black"
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("One portion %1").arg(text)
        }
    }
    Rule {}
}
