import QtQuick
import QtQuick.Controls.Basic
import Nutrika

// The look of CarbCounterUIView: the calculator's lines, the total and "Search more foods".
FocusScope {
    id: screen

    property CarbCounterUIView uiView: CarbCounterUIView {}
    required property StackView navigation
    property var presentationMode: null

    StackView.onActivated: uiView.appear()

    ViewContainer {
        anchors.fill: parent
        titleText: qsTr("Carb Calculator")
        backButton: false
        presentationMode: screen.presentationMode

        CalculatorColumnHeader {
            id: columnHeader
            width: parent.width
            counterHeader: screen.uiView.counterHeader
        }

        ListView {
            id: lineList
            objectName: "lineList"
            y: columnHeader.height
            width: parent.width
            height: parent.height - columnHeader.height - searchMore.height - 20
            clip: true
            // Qt 6.4's linter has no type information for a list of objects; the engine reads it well.
            model: screen.uiView.lines // qmllint disable type
            boundsBehavior: Flickable.StopAtBounds
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Calculator")

            // Qt 6.4 cannot create every component bound to its file (ComponentBehavior: Bound), so the
            // components below reach ids outside them, which the linter counts as unqualified access.
            // qmllint disable unqualified
            delegate: CalculatorLine {
                required property int index
                required property DiaryEntry modelData
                width: lineList.width
                title: screen.uiView.lineTitle(index)
                isFood: screen.uiView.lineIsFood(index)
                amount: {
                    // Read so the amount follows edits of this line and of lines inside a meal.
                    modelData.total
                    screen.uiView.totalText
                    return screen.uiView.lineAmount(index)
                }
                onOpened: lineLink.open(index)
                onRemoved: screen.uiView.remove(index)
            }

            footer: CalculatorTotalRow {
                width: lineList.width
                amount: screen.uiView.totalText
            }
            // qmllint enable unqualified
        }

        ActionButton {
            id: searchMore
            objectName: "searchMoreButton"
            anchors.bottom: parent.bottom
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.margins: 10
            implicitHeight: 60
            text: qsTr("Search more foods")
            bold: true
            pixelSize: Look.titleSize
            textColor: "white"
            fillColor: Look.titleText
            radius: 25
            onClicked: EnvironmentVariables.searchActive = true
        }
    }

    NavigationLink {
        navigation: screen.navigation
        active: EnvironmentVariables.searchActive
        destination: "SearchContainerUIView"
        onDismissed: EnvironmentVariables.searchActive = false
    }

    // A tapped line: its preview for a food, the meal editor for a meal.
    NavigationLink {
        id: lineLink
        function open(index) {
            const food = screen.uiView.lineIsFood(index)
            destination = food ? "AddToCalcPreviewUIView" : "CreateRecipeUIView"
            properties = { diaryEntry: screen.uiView.line(index), mode: food ? "edit" : "view" }
            active = true
        }
        navigation: screen.navigation
        onDismissed: active = false
    }

    // The chosen suggestion's portions; read-only: going back does not clear the flag.
    NavigationLink {
        navigation: screen.navigation
        active: screen.uiView.hasAccompanimentItem && EnvironmentVariables.accompanimentsActive
        writesBack: false
        destination: "SelectPortionUIView"
        properties: ({ foodItem: screen.uiView.accompanimentItem })
    }
}
