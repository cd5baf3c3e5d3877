import QtQuick
import QtQuick.Layouts
import Nutrika

// The look of RecipeSearchUIView: the saved meals, narrowed by name, and "Create Meal".
FocusScope {
    id: screen

    property RecipeSearchUIView uiView: RecipeSearchUIView {}
    required property NavigationStack navigation
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
                onOpened: mealLink.open({ savedMeal: modelData, mode: CreateRecipeUIView.Select,
                                          lastMode: CreateRecipeUIView.Edit })
            }
            // qmllint enable unqualified
        }

        Text {
            objectName: "noMealsHint"
            visible: screen.uiView.counter > 0 && screen.uiView.noSavedMeals
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.bottomMargin: 6
            text: qsTr("No saved meals yet. Tap \u201cCreate Meal\u201d, add its ingredients and save it: it will be listed here.")
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: Look.bodySize
            color: "black"
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        // The button area, set off from the list by an edge line.
        Item {
            Layout.fillWidth: true
            implicitHeight: createMeal.implicitHeight + 32
            EdgeBorder {
                objectName: "createMealEdge"
                anchors.fill: parent
                lineWidth: 1
                edges: [EdgeBorder.Top]
                color: Look.lightGray
            }
            ActionButton {
                id: createMeal
                objectName: "createMealButton"
                anchors.fill: parent
                anchors.margins: 16
                implicitHeight: 50
                text: qsTr("Create Meal")
                bold: true
                pixelSize: Look.titleSize
                textColor: "white"
                fillColor: Look.titleText
                radius: 10
                onClicked: mealLink.open({ newMeal: true, mode: CreateRecipeUIView.New,
                                           lastMode: CreateRecipeUIView.Select })
            }
        }
    }

    // The meal editor, for a saved meal or a new one, each on a line of its own.
    NavigationLink {
        id: mealLink
        function open(meal) {
            properties = Object.assign({ quantityText: "1" }, meal)
            active = true
        }
        navigation: screen.navigation
        destination: Destinations.CreateRecipe
        onDismissed: active = false
    }
}
