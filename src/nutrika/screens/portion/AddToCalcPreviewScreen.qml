import QtQuick
import QtQuick.Layouts
import Nutrika

// The look of AddToCalcPreviewUIView: the food, its portion and quantity, the carbohydrates of that
// amount and the buttons that add it, search on, or update the calculator line.
FocusScope {
    id: screen

    property AddToCalcPreviewUIView uiView: AddToCalcPreviewUIView {}
    required property NavigationStack navigation
    property var presentationMode: null
    // Add mode: the food and portion chosen on the portion screen.
    property var selectedFood
    property var selectedPortion
    // Edit mode: the calculator line.
    property DiaryEntry diaryEntry: null
    readonly property bool editing: uiView.mode === AddToCalcPreviewUIView.Edit

    Component.onCompleted: {
        if (uiView.preview !== Preview.NotPreview)
            return
        if (diaryEntry)
            uiView.startEditing(diaryEntry)
        else
            uiView.startAdding(selectedFood, selectedPortion)
    }
    // Asked for as the screen starts to show, and again after the portion screen: the values of the
    // portion now in force.
    NavigationStack.onActivating: uiView.appear()

    Connections {
        target: screen.uiView
        function onCloseRequested() {
            if (screen.presentationMode)
                screen.presentationMode.dismiss()
        }
    }

    ViewContainer {
        anchors.fill: parent
        titleText: qsTr("Add Item")
        backButton: true
        presentationMode: screen.presentationMode

        // On a wide window the rows keep a reading width, so each number stays next to its label.
        ColumnLayout {
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.topMargin: 16
            width: Math.min(parent.width, Look.readingWidth)
            spacing: 12

            Text {
                objectName: "foodDescription"
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                text: screen.uiView.description
                font.pixelSize: Look.headlineSize
                font.bold: true
                color: Look.titleText
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            TopTable {
                Layout.fillWidth: true
                uiView: screen.uiView
                onPortionTapped: portionLink.active = true
            }

            RowLayout {
                objectName: "carbohydratesRow"
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                Accessible.role: Accessible.StaticText
                Accessible.name: qsTr("Carbohydrates %1").arg(carbs.text === "" ? qsTr("loading") : carbs.text)
                Text {
                    Layout.fillWidth: true
                    text: qsTr("Carbohydrates")
                    font.bold: true
                    font.pixelSize: Look.bodySize
                    color: "black"
                }
                Spinner {
                    visible: screen.uiView.isLoading && carbs.text === ""
                    size: 24
                }
                // The figure a dose is taken from: the largest on the screen.
                Text {
                    id: carbs
                    objectName: "carbohydratesValue"
                    text: screen.uiView.carbohydratesText
                    font.pixelSize: Look.figureSize
                    font.bold: true
                    color: "black"
                }
            }

            // A failed request leaves the line's earlier value (it may belong to another portion):
            // say so rather than let it pass for this portion's.
            Text {
                objectName: "nutrientsFailed"
                visible: screen.uiView.nutrientsFailed
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                text: qsTr("The carbohydrates of this portion could not be loaded. Check the connection, then go back and open it again.")
                wrapMode: Text.Wrap
                font.pixelSize: Look.bodySize
                color: "#b00020"
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }

            Item { Layout.fillHeight: true }

            ActionButton {
                objectName: screen.editing ? "updateButton" : "addButton"
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                implicitHeight: 54
                text: screen.editing ? qsTr("Update") : screen.uiView.addButtonText
                // A line is only added once its carbohydrates are known: a line added earlier would be
                // counted, or saved in a meal, without them.
                enabled: !screen.uiView.isLoading && !screen.uiView.nutrientsFailed
                bold: true
                pixelSize: Look.titleSize
                textColor: "white"
                fillColor: Look.titleText
                radius: 25
                onClicked: screen.editing ? screen.uiView.update() : screen.uiView.add()
            }
            ActionButton {
                objectName: "searchMoreButton"
                visible: !screen.editing
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                Layout.bottomMargin: 16
                implicitHeight: 54
                text: qsTr("Search more foods")
                bold: true
                pixelSize: Look.titleSize
                textColor: "white"
                fillColor: Look.titleText
                radius: 25
                onClicked: screen.uiView.searchMoreFoods()
            }
            Item { visible: screen.editing; implicitHeight: 16 }
        }
    }

    // Edit mode: the portion screen for the line's food, which hands the new portion back.
    NavigationLink {
        id: portionLink
        navigation: screen.navigation
        destination: Destinations.SelectPortion
        properties: ({
            selectedFood: screen.uiView.foodItem,
            onCompleteCallback: portion => screen.uiView.replacePortion(portion)
        })
        onDismissed: active = false
    }
}
