import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Nutrika

// The look of NumberStepper: minus, the editable number and plus. A tap steps once; holding a button
// for 0.2 s repeats the step every 0.05 s until the next tap.
Rectangle {
    id: control

    property alias value: stepper.value
    property alias min: stepper.min
    property alias max: stepper.max
    readonly property alias stepper: stepper
    // What the number counts, for a screen reader.
    property string accessibleName: qsTr("Number")

    // Every normalised value (onUpdate).
    signal updated(real value)

    implicitWidth: 150
    implicitHeight: 35
    radius: 5
    color: "white"

    NumberStepper {
        id: stepper
        onUpdated: value => control.updated(value)
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        RoundIconButton {
            objectName: "minusButton"
            Layout.leftMargin: 7
            iconName: "minus.circle.fill"
            accessibleName: qsTr("Decrease %1").arg(control.accessibleName)
            onActivated: stepper.tap(NumberStepper.Down)
            TapHandler {
                longPressThreshold: 3600 // the stepper recognises the long press itself
                margin: 10 // a finger-sized target around the 25-point circle
                onPressedChanged: if (pressed) stepper.press(NumberStepper.Down)
                onTapped: stepper.release(NumberStepper.Down)
                onCanceled: stepper.cancelPress()
            }
        }

        TextField {
            objectName: "numberField"
            Layout.fillWidth: true
            Layout.fillHeight: true
            text: stepper.value
            onTextEdited: {
                const emptied = text === ""
                stepper.value = text
                // An emptied field reads as the minimum at once; selected, the next digit replaces it
                // rather than joining it ("1" then "2" would count 12).
                if (emptied)
                    selectAll()
            }
            font: Look.arial
            color: "black"
            horizontalAlignment: Text.AlignHCenter
            inputMethodHints: Qt.ImhDigitsOnly
            background: null
            Accessible.role: Accessible.EditableText
            Accessible.name: control.accessibleName
        }

        RoundIconButton {
            objectName: "plusButton"
            Layout.rightMargin: 7
            iconName: "plus.circle.fill"
            accessibleName: qsTr("Increase %1").arg(control.accessibleName)
            onActivated: stepper.tap(NumberStepper.Up)
            TapHandler {
                longPressThreshold: 3600
                margin: 10
                onPressedChanged: if (pressed) stepper.press(NumberStepper.Up)
                onTapped: stepper.release(NumberStepper.Up)
                onCanceled: stepper.cancelPress()
            }
        }
    }
}
