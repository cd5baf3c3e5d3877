import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Templates as T
import QtQuick.Layouts
import Nutrika

// The look of ItemSearchUIView: search bar, brand and category filters, the count line and the
// generic and branded results; a tapped food opens its portions.
FocusScope {
    id: screen

    property ItemSearchUIView uiView: ItemSearchUIView {}
    required property NavigationStack navigation

    // Rows and section headers are built as they come into view, in no particular order; a screen
    // reader must meet each row after its own section's header.
    function readResultsInOrder() { ReadingOrder.readTopToBottom(results.contentItem) }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        SearchBar {
            id: searchBar
            objectName: "foodSearchBar"
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.bottomMargin: 10
            placeholder: qsTr("Search")
            isLoading: screen.uiView.isLoading
            focus: true
            onFinishTyping: text => screen.uiView.onFinishTyping(text)
        }

        // Two buttons on a DetailColor1 strip, which shows as thin lines around and between them.
        Rectangle {
            Layout.fillWidth: true
            implicitHeight: filters.implicitHeight + 2
            color: Look.detailColor
            RowLayout {
                id: filters
                anchors.fill: parent
                anchors.topMargin: 1
                anchors.bottomMargin: 1
                spacing: 1
                FilterList {
                    objectName: "brandFilter"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    title: qsTr("Filter by brand")
                    selectedFilterItem: screen.uiView.brandFilterValue
                    options: screen.uiView.brandOptions
                    enabledForText: screen.uiView.debouncedText !== ""
                    onChoose: value => screen.uiView.brandFilterValue = value
                    onDone: screen.uiView.filterDone()
                }
                FilterList {
                    objectName: "categoryFilter"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    title: qsTr("Filter by category")
                    selectedFilterItem: screen.uiView.categoryFilterValue
                    options: screen.uiView.categoryOptions
                    enabledForText: screen.uiView.debouncedText !== ""
                    onChoose: value => screen.uiView.categoryFilterValue = value
                    onDone: screen.uiView.filterDone()
                }
            }
        }

        Text {
            objectName: "countLine"
            Layout.fillWidth: true
            Layout.margins: 10
            visible: screen.uiView.countText !== ""
            text: screen.uiView.countText
            font.pixelSize: Look.headlineSize
            font.bold: true
            color: Look.titleText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        // Before anything is typed the results hold only their two headers: say what to do.
        Text {
            objectName: "searchHint"
            Layout.fillWidth: true
            Layout.margins: 10
            visible: screen.uiView.debouncedText === ""
            text: qsTr("Type the name of a food to search, for example \u201cbanana\u201d or \u201crice\u201d.")
            font.pixelSize: Look.bodySize
            color: "black"
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        // When the host lists them: the foods lately added, each opening its last portion's preview.
        Column {
            id: recent
            objectName: "recentFoods"
            Layout.fillWidth: true
            visible: screen.uiView.debouncedText === "" && screen.uiView.recentFoods.length > 0
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Recent foods")

            ListHeader {
                width: recent.width
                title: qsTr("Recent foods")
            }
            Repeater {
                model: screen.uiView.recentFoods
                // qmllint disable unqualified
                delegate: FoodResultRow {
                    required property var modelData
                    objectName: "recentFood"
                    width: recent.width
                    title: modelData.title
                    brand: modelData.detail
                    onOpened: recentLink.open(modelData)
                }
                // qmllint enable unqualified
            }
        }

        Text {
            objectName: "filterResetHint"
            Layout.fillWidth: true
            Layout.leftMargin: 10
            Layout.rightMargin: 10
            Layout.bottomMargin: 10
            visible: screen.uiView.filterResetHint !== ""
            text: screen.uiView.filterResetHint
            font.pixelSize: Look.calloutSize
            color: "black"
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        ListView {
            id: results
            objectName: "results"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            model: screen.uiView.results
            boundsBehavior: Flickable.StopAtBounds
            // Rows beyond the visible ones are built while scrolling, not before the first page shows.
            cacheBuffer: 0
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Search results")
            // Rows move when those above them change height: keep the reading order with them. Qt 6.4's
            // linter cannot tell that Qt.callLater is a function.
            // qmllint disable type
            onContentHeightChanged: Qt.callLater(screen.readResultsInOrder)
            // qmllint enable type

            // Qt 6.4 cannot create every component bound to its file (ComponentBehavior: Bound), so the
            // components below reach ids outside them, which the linter counts as unqualified access.
            // qmllint disable unqualified

            // The header of the section in view stays at the top while its rows scroll under it.
            section.property: "section"
            section.labelPositioning: ViewSection.InlineLabels | ViewSection.CurrentLabelAtStart

            section.delegate: ListHeader {
                required property string section
                Component.onCompleted: Qt.callLater(screen.readResultsInOrder)
                objectName: "sectionHeader"
                z: 2 // over the rows that scroll under it, whatever its place in the reading order
                width: results.width
                title: section
            }

            delegate: FoodResultRow {
                required property int index
                required property bool isPlaceholder
                required property bool branded
                required property int indexInSection
                required title
                required brand
                width: results.width
                // An empty section keeps its header over a row of no height.
                visible: !isPlaceholder
                height: isPlaceholder ? 0 : implicitHeight
                // Rows of the search before stay in view, dimmed, until the new reply replaces them.
                opacity: screen.uiView.resultsStale ? Look.staleOpacity : 1
                // A food row coming into view may be the last one: the view state decides whether to page.
                Component.onCompleted: {
                    Qt.callLater(screen.readResultsInOrder)
                    if (!isPlaceholder)
                        screen.uiView.rowAppeared(branded, indexInSection)
                }
                onOpened: screen.uiView.selectRow(index)
            }
            // qmllint enable unqualified
        }
    }

    Dialog {
        id: alert
        objectName: "errorAlert"
        parent: T.Overlay.overlay
        anchors.centerIn: parent
        width: Math.min(parent ? parent.width - 40 : 300, 320)
        modal: true
        title: screen.uiView.errorMessageTitle
        visible: screen.uiView.showErrorMessage
        standardButtons: Dialog.Ok
        onClosed: screen.uiView.showErrorMessage = false
        Label {
            objectName: "errorBody"
            width: parent.width
            Accessible.role: Accessible.AlertMessage
            Accessible.name: alert.title
            Accessible.description: text
            text: screen.uiView.errorMessageBody
            wrapMode: Text.Wrap
        }
    }

    // Read-only: the portion flow closes it by moving portionActive elsewhere. No row is chosen while
    // the flag is -1; a row tapped again after going back writes the flag anew and opens it again.
    NavigationLink {
        id: portionLink
        navigation: screen.navigation
        // Qt 6.4's linter has no type information for 64-bit integers; the engine reads them well.
        active: EnvironmentVariables.portionActive !== -1 // qmllint disable type
                && EnvironmentVariables.portionActive === screen.uiView.selectedFood.id // qmllint disable type
        writesBack: false
        destination: Destinations.SelectPortion
        properties: ({ selectedFood: screen.uiView.selectedFood })
    }
    Connections {
        target: EnvironmentVariables
        function onPortionActiveChanged() {
            portionLink.rearm()
            // The preview's "Search more foods" closes the portion flow, which a recent food skipped.
            if (EnvironmentVariables.portionActive === -1) // qmllint disable type
                recentLink.active = false
        }
    }

    // A recent food goes straight to the preview of its last portion.
    NavigationLink {
        id: recentLink
        function open(recent) {
            properties = { selectedFood: recent.food, selectedPortion: recent.portion }
            active = true
        }
        navigation: screen.navigation
        destination: Destinations.AddToCalcPreview
        onDismissed: active = false
    }
    Component.onCompleted: uiView.loadRecentFoods()
    Connections {
        target: HostSettings
        function onChanged() { screen.uiView.loadRecentFoods() }
    }
}
