import QtQuick
import QtQuick.Layouts
import Nutrika

// Qt 6.4's linter knows neither 64-bit integers, nor the types of components that reach ids outside
// them (ComponentBehavior: Bound needs 6.5), nor Qt.callLater; the engine reads all of these well.
// qmllint disable

// The look of SelectPortionUIView: the tabs, a two-column grid whose first box is the custom amount,
// and "Select Portion". Arrows move between boxes, Space selects one, Enter selects and goes on.
FocusScope {
    id: screen

    property SelectPortionUIView uiView: SelectPortionUIView { id: portionState }
    required property NavigationStack navigation
    property var presentationMode: null
    property alias selectedFood: portionState.selectedFood
    // Given by an opener that takes the portion back (a function of one PortionItem), else null.
    property var onCompleteCallback: null
    // Two columns whatever the width: on a wide window the boxes stop growing past their 200-pixel
    // thumbnails and a frame, so several rows stay in view.
    readonly property real boxSize: Math.min(width / 2 - 20, 216)
    // The keyboard's ring shows while the keyboard moves in the grid; a tap elsewhere hides it, so that
    // it never marks a box other than the chosen one for a mouse or touch user.
    property bool keyboardInGrid: true

    Component.onCompleted: uiView.hasCompleteCallback = onCompleteCallback !== null
    // The portions are asked for as the screen starts to show, not after its transition.
    NavigationStack.onActivating: uiView.appear()
    NavigationStack.onActivated: grid.forceActiveFocus()

    // The other tab lists the same portions in another form: the chosen one stays in view.
    function showChosenBox() {
        if (!uiView.hasSelectedPortion)
            return
        const index = uiView.portionOptions.findIndex(portion => portion._id === uiView.selectedPortionId)
        if (index >= 0 || uiView.selectedPortionId === -1)
            grid.positionViewAtIndex(index + 1, GridView.Contain)
    }

    Connections {
        target: screen.uiView
        function onPortionsChanged() { Qt.callLater(screen.showChosenBox) }
        function onCompleted(portion) {
            screen.onCompleteCallback(portion)
            if (screen.presentationMode)
                screen.presentationMode.dismiss()
        }
    }

    // Selects the box at a grid index; the custom box also takes the typing. A tap leaves the keyboard's
    // current box alone: moving it would scroll the grid between the two taps of a double tap.
    function choose(index, fromKeyboard) {
        keyboardInGrid = fromKeyboard
        if (fromKeyboard)
            grid.currentIndex = index
        if (index > 0) {
            uiView.selectBox(index - 1)
            return
        }
        uiView.selectCustom()
        grid.itemAtIndex(0).field.forceActiveFocus()
    }

    function chooseAndGoOn() {
        choose(grid.currentIndex, true)
        uiView.selectPortion()
    }

    Rectangle {
        anchors.fill: parent
        color: "white"
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 8

        RowLayout {
            Layout.fillWidth: true
            Layout.margins: 8
            ActionButton {
                objectName: "backButton"
                implicitWidth: 44
                implicitHeight: 44
                symbol: "chevron.left"
                text: qsTr("Back")
                pixelSize: 28
                textColor: Look.titleText
                onClicked: if (screen.presentationMode) screen.presentationMode.dismiss()
            }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2
                Text {
                    Layout.fillWidth: true
                    text: qsTr("Select your portion")
                    font.pixelSize: Look.headlineSize
                    font.bold: true
                    color: Look.titleText
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                // Which food the boxes are portions of: a suggestion opens here with nothing else saying so.
                Text {
                    objectName: "foodName"
                    Layout.fillWidth: true
                    text: screen.selectedFood.description
                    font.pixelSize: Look.bodySize
                    color: "black"
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }
        }

        CustomPickerUIView {
            objectName: "tabPicker"
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            visible: screen.uiView.hasImagePortions
            options: screen.uiView.options
            selected: screen.uiView.tabOption
            onSelect: index => screen.uiView.tabOption = index
        }

        Text {
            Layout.leftMargin: 16
            visible: screen.uiView.tabOption === 0
            text: qsTr("Double tap an image to enlarge it.")
            font.pixelSize: Look.captionSize
            color: Look.titleText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        GridView {
            id: grid
            objectName: "portionGrid"
            Layout.preferredWidth: Math.min(screen.width - 10, 2 * screen.boxSize + 40)
            Layout.alignment: Qt.AlignHCenter
            Layout.fillHeight: true
            clip: true
            cellWidth: width / 2
            cellHeight: (screen.uiView.tabOption === 0 ? screen.boxSize : screen.boxSize / 2) + 16
            // The custom box, then the portions of the tab in force.
            model: screen.uiView.portionOptions.length + 1
            keyNavigationEnabled: true
            activeFocusOnTab: true
            highlightFollowsCurrentItem: false
            boundsBehavior: Flickable.StopAtBounds
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Portions")

            Keys.onPressed: event => {
                screen.keyboardInGrid = true
                event.accepted = false
            }
            Keys.onSpacePressed: screen.choose(currentIndex, true)
            Keys.onReturnPressed: screen.chooseAndGoOn()
            Keys.onEnterPressed: screen.chooseAndGoOn()

            delegate: Loader {
                id: cell
                required property int index
                readonly property var field: item && item.field ? item.field : null
                sourceComponent: index === 0 ? customBox : portionBox

                Component {
                    id: customBox
                    CustomAmountBox {
                        uiView: screen.uiView
                        boxSize: screen.boxSize
                        halfSize: screen.uiView.tabOption !== 0
                        current: screen.keyboardInGrid && grid.activeFocus && grid.currentIndex === 0
                        onTapped: {
                            screen.keyboardInGrid = false
                            screen.uiView.selectCustom()
                        }
                        onSubmitted: screen.uiView.selectPortion()
                    }
                }
                Component {
                    id: portionBox
                    ItemBox {
                        portion: screen.uiView.portionOptions[cell.index - 1]
                        foodName: screen.selectedFood.description
                        isImage: screen.uiView.tabOption === 0
                        loadsPictures: screen.uiView.preview === Preview.NotPreview
                        boxSize: screen.boxSize
                        selected: screen.uiView.hasSelectedPortion && screen.uiView.selectedPortionId === portion._id
                        current: screen.keyboardInGrid && grid.activeFocus && grid.currentIndex === cell.index
                        onTapped: screen.choose(cell.index, false)
                    }
                }
            }
        }

        Spinner {
            objectName: "portionsSpinner"
            Layout.alignment: Qt.AlignHCenter
            visible: screen.uiView.isLoading
            size: 48
        }

        ActionButton {
            objectName: "selectPortionButton"
            Layout.fillWidth: true
            Layout.margins: 10
            implicitHeight: 50
            text: qsTr("Select Portion")
            bold: true
            pixelSize: Look.titleSize
            enabled: screen.uiView.canSelectPortion
            textColor: enabled ? Look.titleText : "#767676"
            onClicked: screen.uiView.selectPortion()
        }
    }

    // "Select Portion" without a callback: the preview of the chosen portion.
    NavigationLink {
        navigation: screen.navigation
        active: screen.uiView.navigationActive
        destination: Destinations.AddToCalcPreview
        properties: ({ selectedFood: screen.uiView.selectedFood, selectedPortion: screen.uiView.chosenPortion })
        onDismissed: screen.uiView.navigationActive = false
    }
}
