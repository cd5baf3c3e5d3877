import QtQuick
import Nutrika

// The food search over the meal editor, framed as "Search Ingredients": a food chosen here goes through
// its portions and the preview into the meal.
FocusScope {
    id: screen

    required property NavigationStack navigation
    property var presentationMode: null

    ViewContainer {
        anchors.fill: parent
        titleText: qsTr("Search Ingredients")
        backButton: true
        presentationMode: screen.presentationMode

        ItemSearchScreen {
            anchors.fill: parent
            anchors.topMargin: 10
            navigation: screen.navigation
            focus: true
        }
    }
}
