import QtQuick
import Nutrika

// Qt 6.4's linter knows neither 64-bit integers, nor the types of components that reach ids outside
// them (ComponentBehavior: Bound needs 6.5), nor Qt.callLater; the engine reads all of these well.
// qmllint disable

// The look of CarbCounterUIView: the calculator's lines, the total, "Search more foods" and the
// suggestions shown over it after a food is added.
FocusScope {
    id: screen

    property CarbCounterUIView uiView: CarbCounterUIView {}
    required property NavigationStack navigation
    property var presentationMode: null
    // Where the amounts end, from the right edge: the remove buttons' column and a gap. The header, every
    // line and the total share it, so the numbers form one column.
    readonly property real amountsRightInset: 54

    NavigationStack.onActivated: uiView.appear()

    // The total is built before the lines, and a line coming into view is built after it; a screen
    // reader must come to the total after the lines it adds up.
    function readLinesInOrder() { ReadingOrder.readTopToBottom(lineList.contentItem) }
    Binding {
        target: screen.uiView
        property: "inFront"
        value: screen.navigation.currentItem === screen
    }

    ViewContainer {
        anchors.fill: parent
        titleText: qsTr("Carb Calculator")
        backButton: false
        presentationMode: screen.presentationMode

        // On a wide window the lines keep a reading width, so each amount stays next to its food.
        Item {
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, Look.readingWidth)

            CalculatorColumnHeader {
                id: columnHeader
                width: parent.width
                counterHeader: screen.uiView.counterHeader
                rightInset: screen.amountsRightInset
            }

            // The suggestions hang from this point under the header.
            Item {
                id: popoverAnchor
                objectName: "popoverAnchor"
                visible: screen.uiView.showAccompanimentList
                y: columnHeader.height
                width: parent.width
            }

            ListView {
                id: lineList
                objectName: "lineList"
                y: columnHeader.height
                width: parent.width
                height: parent.height - columnHeader.height - searchMore.height - 20
                        - (undoBar.visible ? undoBar.height + 10 : 0)
                clip: true
                model: screen.uiView.lines
                boundsBehavior: Flickable.StopAtBounds
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Calculator")

                delegate: CalculatorLine {
                    required property int index
                    required title
                    required isFood
                    required amount
                    required detail
                    required note
                    width: lineList.width
                    amountRightInset: screen.amountsRightInset
                    Component.onCompleted: Qt.callLater(screen.readLinesInOrder)
                    onOpened: lineLink.open(index, isFood)
                    onRemoved: screen.uiView.remove(index)
                }

                footer: CalculatorTotalRow {
                    width: lineList.width
                    amount: screen.uiView.totalText
                    unitAmount: screen.uiView.totalUnitText
                    note: screen.uiView.totalNote
                    rightInset: screen.amountsRightInset
                }
            }

            // After a removal, when the host offers it: the line can be put back for a few seconds. Built
            // only then, so the calculator opens as fast without it.
            Loader {
                id: undoBar
                anchors.bottom: searchMore.top
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.margins: 10
                active: screen.uiView.undoText !== ""
                visible: active
                height: 52
                sourceComponent: Rectangle {
                    objectName: "undoBar"
                    radius: 8
                    color: "#333333"
                    Accessible.role: Accessible.AlertMessage
                    Accessible.name: screen.uiView.undoText

                    Text {
                        anchors.left: parent.left
                        anchors.right: undoButton.left
                        anchors.verticalCenter: parent.verticalCenter
                        anchors.leftMargin: 16
                        text: screen.uiView.undoText
                        elide: Text.ElideRight
                        font.pixelSize: Look.bodySize
                        color: "white"
                    }
                    ActionButton {
                        id: undoButton
                        objectName: "undoButton"
                        anchors.right: parent.right
                        anchors.verticalCenter: parent.verticalCenter
                        anchors.rightMargin: 6
                        implicitWidth: 88
                        implicitHeight: 44
                        text: qsTr("Undo")
                        bold: true
                        pixelSize: Look.bodySize
                        textColor: "#8fd3ff"
                        onClicked: screen.uiView.undoRemove()
                    }
                }
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
    }

    // Built the first time the suggestions show, so that opening the calculator does not wait for them.
    Loader {
        id: suggestions
        function wanted() {
            if (screen.uiView.showAccompanimentList && !item)
                setSource("SuggestionsPopover.qml", { calculator: screen.uiView, anchor: popoverAnchor })
        }
        Component.onCompleted: wanted()
        Connections {
            target: screen.uiView
            function onShowAccompanimentListChanged() { suggestions.wanted() }
        }
    }

    NavigationLink {
        navigation: screen.navigation
        active: EnvironmentVariables.searchActive
        destination: Destinations.SearchContainer
        onDismissed: EnvironmentVariables.searchActive = false
    }

    // A tapped line: its preview for a food, the meal editor for a meal.
    NavigationLink {
        id: lineLink
        function open(index, food) {
            destination = food ? Destinations.AddToCalcPreview : Destinations.CreateRecipe
            properties = food ? { diaryEntry: screen.uiView.line(index) }
                              : { diaryEntry: screen.uiView.line(index), mode: CreateRecipeUIView.View }
            active = true
        }
        navigation: screen.navigation
        onDismissed: active = false
    }

    // The chosen suggestion's portions. Read-only: going back does not clear the flag, and choosing a
    // suggestion again writes it anew.
    NavigationLink {
        id: accompanimentLink
        navigation: screen.navigation
        active: screen.uiView.hasAccompanimentItem && EnvironmentVariables.accompanimentsActive
        writesBack: false
        destination: Destinations.SelectPortion
        properties: ({ selectedFood: screen.uiView.accompanimentItem })
    }
    Connections {
        target: EnvironmentVariables
        function onAccompanimentsActiveChanged() { accompanimentLink.rearm() }
    }
}
