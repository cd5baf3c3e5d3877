import QtQuick
import QtQuick.Layouts
import Nutrika

// Qt 6.4's linter knows neither 64-bit integers, nor the types of components that reach ids outside
// them (ComponentBehavior: Bound needs 6.5); the engine reads all of these well.
// qmllint disable

// The look of CreateRecipeUIView: the mode link, the meal table, the quantity and carbohydrates of a
// meal on its way to the calculator, the ingredients with their weights and the mode's buttons.
FocusScope {
    id: screen

    property CreateRecipeUIView uiView: CreateRecipeUIView {}
    required property NavigationStack navigation
    property var presentationMode: null
    // The calculator gives its meal line; the saved-meal list gives a saved meal, or asks for a new one,
    // with both modes and the quantity text.
    property DiaryEntry diaryEntry: null
    property var savedMeal
    property bool newMeal: false
    property int mode: CreateRecipeUIView.View
    property int lastMode: CreateRecipeUIView.Select
    property string quantityText: "1"

    Component.onCompleted: {
        // A preview is shown as the stack's first screen, which is never "activating".
        if (uiView.preview !== CreateRecipeUIView.NotPreview) {
            uiView.appear()
            return
        }
        if (diaryEntry)
            uiView.openLine(diaryEntry, mode)
        else if (newMeal)
            uiView.openNewMeal(mode, lastMode, quantityText)
        else
            uiView.openSavedMeal(savedMeal, mode, lastMode, quantityText)
    }
    // Coming back from the ingredient search brings the chosen foods in.
    NavigationStack.onActivating: uiView.appear()
    NavigationStack.onRemoved: uiView.leave()

    Connections {
        target: screen.uiView
        function onCloseRequested() {
            if (screen.presentationMode)
                screen.presentationMode.dismiss()
        }
    }

    component BottomButton: ActionButton {
        Layout.fillWidth: true
        Layout.leftMargin: 16
        Layout.rightMargin: 16
        implicitHeight: 54
        bold: true
        pixelSize: Look.titleSize
        textColor: "white"
        fillColor: Look.titleText
        radius: 25
    }
    component LabelCell: Rectangle {
        property alias text: labelText.text
        Layout.preferredWidth: 180
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

    ViewContainer {
        anchors.fill: parent
        titleText: screen.uiView.title
        backButton: true
        presentationMode: screen.presentationMode

        // On a wide window the rows keep a reading width, so each value stays next to its label.
        ColumnLayout {
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, Look.readingWidth)
            spacing: 0

            ActionButton {
                objectName: "headerLink"
                visible: screen.uiView.headerLinkText !== ""
                Layout.alignment: Qt.AlignRight
                Layout.rightMargin: 16
                Layout.preferredHeight: 44
                Layout.preferredWidth: contentItem.implicitWidth + 20
                text: screen.uiView.headerLinkText
                onClicked: screen.uiView.toggleMode()
                textColor: Look.headingText
                underline: true
            }
            Item {
                visible: screen.uiView.headerLinkText === ""
                implicitHeight: 10
            }

            RecipeTopTable {
                Layout.fillWidth: true
                Layout.fillHeight: false
                labelWidth: 180
                uiView: screen.uiView
            }

            RowLayout {
                objectName: "quantityRow"
                visible: screen.uiView.quantityRowsShown
                Layout.fillWidth: true
                Layout.fillHeight: false
                Layout.preferredHeight: 50
                spacing: 0
                LabelCell { text: qsTr("Quantity") }
                Item {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    NumberStepperControl {
                        objectName: "quantityStepper"
                        visible: screen.uiView.quantityEditable
                        anchors.verticalCenter: parent.verticalCenter
                        anchors.right: parent.right
                        anchors.rightMargin: 10
                        min: 1
                        max: 99999
                        color: "white"
                        value: screen.uiView.quantity
                        onValueChanged: screen.uiView.quantity = value
                        accessibleName: qsTr("Quantity")
                    }
                    Text {
                        objectName: "quantityText"
                        visible: !screen.uiView.quantityEditable
                        anchors.fill: parent
                        anchors.leftMargin: 10
                        verticalAlignment: Text.AlignVCenter
                        text: screen.uiView.quantity
                        font.pixelSize: Look.bodySize
                        color: "black"
                        Accessible.role: Accessible.StaticText
                        Accessible.name: qsTr("Quantity %1").arg(text)
                    }
                }
            }
            Rectangle {
                visible: screen.uiView.quantityRowsShown
                Layout.fillWidth: true
                implicitHeight: 1
                color: Look.lightGray
            }
            RowLayout {
                objectName: "totalCarbohydratesRow"
                visible: screen.uiView.quantityRowsShown
                Layout.fillWidth: true
                Layout.fillHeight: false
                Layout.preferredHeight: 50
                spacing: 0
                Accessible.role: Accessible.StaticText
                Accessible.name: qsTr("Total Carbohydrates %1").arg(totalCarbs.text)
                LabelCell { text: qsTr("Total Carbohydrates") }
                // What a dose is taken from when the meal goes to the calculator: the largest figure here.
                Text {
                    id: totalCarbs
                    objectName: "totalCarbohydrates"
                    Layout.fillWidth: true
                    Layout.leftMargin: 10
                    text: screen.uiView.totalTrackedText
                    font.pixelSize: Look.figureSize
                    font.bold: true
                    color: "black"
                }
            }

            ListHeader {
                Layout.fillWidth: true
                Layout.topMargin: 10
                title: qsTr("Ingredients")
                rightTitle: qsTr("Weight (g)")
                clear: true
            }

            ListView {
                id: ingredientList
                objectName: "ingredientList"
                Layout.fillWidth: true
                Layout.fillHeight: true
                clip: true
                model: screen.uiView.ingredients
                boundsBehavior: Flickable.StopAtBounds
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Ingredients")

                // An empty meal says how it gets its ingredients, rather than showing a bare total.
                header: Text {
                    objectName: "noIngredients"
                    width: ingredientList.width
                    visible: ingredientList.count === 0
                    height: visible ? implicitHeight : 0
                    padding: 16
                    text: screen.uiView.composing
                          ? qsTr("No ingredients yet. Use \u201cAdd Ingredients\u201d to add the foods of this meal.")
                          : qsTr("This meal has no ingredients.")
                    font.pixelSize: Look.bodySize
                    color: "black"
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }

                delegate: IngredientRow {
                    required property int index
                    required property var modelData
                    width: ingredientList.width
                    label: modelData.label
                    weight: modelData.weight
                    removable: screen.uiView.removable
                    onRemoved: screen.uiView.removeIngredient(index)
                }

                footer: Item {
                    width: ingredientList.width
                    implicitHeight: totalRow.implicitHeight + 10
                    Rectangle {
                        id: totalRow
                        objectName: "totalWeightRow"
                        anchors.left: parent.left
                        anchors.right: parent.right
                        anchors.leftMargin: 6
                        anchors.rightMargin: 6
                        implicitHeight: totalLayout.implicitHeight + 20
                        color: "white"
                        Accessible.role: Accessible.StaticText
                        Accessible.name: qsTr("Total %1").arg(totalWeight.text)
                        RowLayout {
                            id: totalLayout
                            anchors.fill: parent
                            anchors.margins: 10
                            spacing: 8
                            Text {
                                Layout.fillWidth: true
                                text: qsTr("Total")
                                font.bold: true
                                font.pixelSize: Look.bodySize
                                color: "black"
                            }
                            Text {
                                id: totalWeight
                                objectName: "totalWeight"
                                text: screen.uiView.totalWeightText
                                font.bold: true
                                font.pixelSize: Look.bodySize
                                color: "black"
                            }
                            // The ingredients' remove column, so that the weights end in one column.
                            Item {
                                visible: screen.uiView.removable
                                Layout.preferredWidth: 44
                            }
                        }
                        EdgeBorder {
                            anchors.fill: parent
                            lineWidth: 1
                            edges: [EdgeBorder.Bottom, EdgeBorder.Leading, EdgeBorder.Trailing]
                            color: Look.lightGray
                        }
                    }
                }
            }

            ColumnLayout {
                Layout.fillWidth: true
                Layout.fillHeight: false
                Layout.topMargin: 10
                Layout.bottomMargin: 16
                spacing: 10
                BottomButton {
                    objectName: "addIngredientsButton"
                    visible: screen.uiView.actions === CreateRecipeUIView.Compose
                    text: qsTr("Add Ingredients")
                    onClicked: screen.uiView.addIngredients()
                }
                BottomButton {
                    objectName: "saveMealButton"
                    visible: screen.uiView.actions === CreateRecipeUIView.Compose
                    // A meal without a name or without ingredients would be saved as nothing to count.
                    enabled: screen.uiView.recipeName.trim() !== "" && screen.uiView.ingredients.length > 0
                    text: qsTr("Save Meal")
                    onClicked: screen.uiView.saveMeal()
                }
                BottomButton {
                    objectName: "addToCalculatorButton"
                    visible: screen.uiView.actions === CreateRecipeUIView.AddToCalculator
                    text: qsTr("Add to Calculator")
                    onClicked: screen.uiView.addToCalculator()
                }
                BottomButton {
                    objectName: "updateButton"
                    visible: screen.uiView.actions === CreateRecipeUIView.Update
                    text: qsTr("Update")
                    onClicked: screen.uiView.update()
                }
            }
        }
    }

    // "Add Ingredients": the food search, while the session collects this meal's ingredients.
    NavigationLink {
        navigation: screen.navigation
        active: EnvironmentVariables.recipeSearchActive
        destination: Destinations.IngredientSearch
        onDismissed: EnvironmentVariables.recipeSearchActive = false
    }
}
