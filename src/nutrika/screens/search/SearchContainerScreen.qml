import QtQuick
import QtQuick.Layouts
import Nutrika

// The look of SearchContainerUIView: the "Search" and "Meals" tabs under the "Search" frame.
FocusScope {
    id: screen

    property SearchContainerUIView uiView: SearchContainerUIView {}
    required property NavigationStack navigation
    property var presentationMode: null

    // Coming back from a pushed screen shows the content again.
    NavigationStack.onActivated: uiView.contentAppeared()

    ViewContainer {
        anchors.fill: parent
        titleText: qsTr("Search")
        backButton: true
        presentationMode: screen.presentationMode

        ColumnLayout {
            anchors.fill: parent
            spacing: 10

            CustomPickerUIView {
                objectName: "tabPicker"
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                Layout.topMargin: 10
                options: screen.uiView.options
                selected: screen.uiView.tabOption
                onSelect: index => screen.uiView.tabOption = index
            }

            // A switch of tabs builds the chosen screen afresh.
            Loader {
                id: content
                objectName: "tabContent"
                Layout.fillWidth: true
                Layout.fillHeight: true
                focus: true
                sourceComponent: screen.uiView.tabOption === 0 ? foodSearch
                               : screen.uiView.tabOption === 1 ? mealSearch : null
                onLoaded: screen.uiView.contentAppeared()
            }
        }
    }

    // Qt 6.4 cannot create every component bound to its file (ComponentBehavior: Bound), so the
    // components below reach ids outside them, which the linter counts as unqualified access.
    // qmllint disable unqualified
    Component {
        id: foodSearch
        // The loaded screen takes the Loader's focus, so typing reaches the search field at once.
        ItemSearchScreen {
            navigation: screen.navigation
            focus: true
        }
    }
    Component {
        id: mealSearch
        RecipeSearchScreen {
            navigation: screen.navigation
            container: screen.uiView
        }
    }
    // qmllint enable unqualified
}
