import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Nutrika

// Qt 6.4's linter knows neither 64-bit integers, nor the types of components that reach ids outside
// them (ComponentBehavior: Bound needs 6.5), nor Qt.callLater; the engine reads all of these well.
// qmllint disable

// The look of FoodAccompanimentsUIView: the foods commonly eaten with the one just added, "Continue
// Adding" and "No Thanks".
FocusScope {
    id: screen

    property FoodAccompanimentsUIView uiView: FoodAccompanimentsUIView {}

    implicitWidth: 360
    implicitHeight: 480
    Accessible.role: Accessible.Dialog
    Accessible.name: heading.title

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 8

        TitleText {
            id: heading
            objectName: "suggestionsHeading"
            Layout.fillWidth: true
            Layout.bottomMargin: 8
            title: qsTr("Would you like to add anything else?")
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
        Text {
            Layout.fillWidth: true
            text: qsTr("The food item you added is commonly consumed with:")
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: Look.bodySize
            color: "black"
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        ListView {
            id: list
            objectName: "suggestionList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.topMargin: 8
            clip: true
            spacing: 6
            focus: true
            model: screen.uiView.items
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar { policy: ScrollBar.AsNeeded }
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Suggested foods")

            delegate: AccompanimentRow {
                required property int index
                required property var modelData
                width: list.width
                title: modelData.description
                brand: modelData.brand
                onChosen: screen.uiView.choose(index)
            }
        }

        ActionButton {
            objectName: "continueAddingButton"
            Layout.alignment: Qt.AlignHCenter
            implicitWidth: 200
            implicitHeight: 44
            text: qsTr("Continue Adding")
            textColor: Look.headingText
            onClicked: screen.uiView.continueAdding()
        }
        ActionButton {
            objectName: "noThanksButton"
            Layout.fillWidth: true
            implicitHeight: 54
            text: qsTr("No Thanks")
            pixelSize: Look.titleSize
            textColor: "white"
            fillColor: Look.titleText
            radius: 25
            onClicked: screen.uiView.noThanks()
        }
    }
}
