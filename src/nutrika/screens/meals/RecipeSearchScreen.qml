import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Nutrika

// The look of RecipeSearchUIView: the saved meals, narrowed by name, and "Create Meal".
FocusScope {
    id: screen

    property RecipeSearchUIView uiView: RecipeSearchUIView {}
    required property StackView navigation
    // The container whose content this is; the list reloads each time that content appears.
    property SearchContainerUIView container: null

    Component.onCompleted: if (!container) uiView.appear()
    Connections {
        target: screen.container
        function onAppeared() { screen.uiView.appear() }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        SearchBar {
            objectName: "mealSearchBar"
            Layout.fillWidth: true
            Layout.margins: 16
            Layout.topMargin: 0
            placeholder: qsTr("Search")
            isLoading: screen.uiView.isLoading
            focus: true
            onFinishTyping: text => screen.uiView.onFinishTyping(text)
        }

        ListHeader {
            Layout.fillWidth: true
            title: qsTr("Saved Meals")
        }

        ListView {
            id: meals
            objectName: "meals"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            // Every appearance rebuilds the rows.
            model: screen.uiView.counter > 0 ? screen.uiView.meals : []
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Saved Meals")

            // Qt 6.4 cannot create every component bound to its file (ComponentBehavior: Bound), so the
            // components below reach ids outside them, which the linter counts as unqualified access.
            // qmllint disable unqualified
            delegate: FoodResultRow {
                required property var modelData
                width: meals.width
                title: modelData.name
                onOpened: mealLink.open(modelData, "select", "edit")
            }
            // qmllint enable unqualified
        }

        ActionButton {
            objectName: "createMealButton"
            Layout.fillWidth: true
            Layout.margins: 16
            implicitHeight: 50
            text: qsTr("Create Meal")
            bold: true
            pixelSize: Look.titleSize
            textColor: "white"
            fillColor: Look.titleText
            radius: 10
            onClicked: mealLink.open(undefined, "new", "select")
        }
    }

    // The meal editor, for a saved meal or a new one.
    NavigationLink {
        id: mealLink
        function open(meal, mode, previousMode) {
            properties = { meal: meal, mode: mode, previousMode: previousMode, quantityText: "1" }
            active = true
        }
        navigation: screen.navigation
        destination: -1 // the meal editor is not built yet: nothing opens
        onDismissed: active = false
    }
}
