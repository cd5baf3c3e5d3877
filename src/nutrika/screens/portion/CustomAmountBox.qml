import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Nutrika

// Qt 6.4's linter knows neither 64-bit integers, nor the types of components that reach ids outside
// them (ComponentBehavior: Bound needs 6.5), nor Qt.callLater; the engine reads all of these well.
// qmllint disable

// The custom amount: a digits-only field and "Enter Amount (g)". A tap on the box selects the custom
// amount; the field keeps only digits, whatever is typed or pasted.
GridBoxContainer {
    id: box

    required property SelectPortionUIView uiView
    readonly property alias field: field

    signal tapped()
    // Enter in the field: go on with the amount typed.
    signal submitted()

    selected: uiView.hasSelectedPortion && uiView.selectedPortionId === -1
    Accessible.role: Accessible.RadioButton
    Accessible.name: qsTr("Custom amount in grams")
    Accessible.checkable: true
    Accessible.checked: selected
    Accessible.onPressAction: tapped()

    TapHandler {
        onTapped: box.tapped()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 4

        TextField {
            id: field
            objectName: "customAmountField"
            Layout.fillWidth: true
            placeholderText: ""
            inputMethodHints: Qt.ImhDigitsOnly
            color: "black"
            font.pixelSize: Look.bodySize
            Accessible.role: Accessible.EditableText
            Accessible.name: qsTr("Enter Amount (g)")
            // A box scrolled back into view shows the amount typed before.
            Component.onCompleted: text = box.uiView.customText
            onTextEdited: {
                box.tapped()
                box.uiView.customText = text
                // The view state decides what the field shows: only the digits, the caret kept in place.
                if (text !== box.uiView.customText) {
                    const caret = cursorPosition - (text.length - box.uiView.customText.length)
                    text = box.uiView.customText
                    cursorPosition = Math.max(0, Math.min(caret, text.length))
                }
            }
            // Chosen by a click or by tabbing in; focus given back as a screen returns is no choice.
            onActiveFocusChanged: {
                if (activeFocus && (focusReason === Qt.MouseFocusReason || focusReason === Qt.TabFocusReason
                                    || focusReason === Qt.BacktabFocusReason))
                    box.tapped()
            }
            Keys.onReturnPressed: box.submitted()
            Keys.onEnterPressed: box.submitted()
            background: Rectangle {
                radius: 6
                color: "white"
                // A focus ring that stays visible on the dark selected box.
                border.width: field.activeFocus ? 3 : 1
                border.color: field.activeFocus ? "#ffbf00" : Look.lightGray
            }
        }
        Text {
            Layout.fillWidth: true
            text: qsTr("Enter Amount (g)")
            font.pixelSize: Look.captionSize
            color: box.selected ? "white" : Look.titleText
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
}
