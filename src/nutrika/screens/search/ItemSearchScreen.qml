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
    required property StackView navigation

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

            delegate: Loader {
                id: rowLoader
                required property int index
                required property bool isHeader
                required property string title
                required property string brand
                required property bool branded
                required property int indexInSection
                width: results.width
                sourceComponent: isHeader ? sectionHeader : foodRow
                // A food row coming into view may be the last one: the view state decides whether to page.
                Component.onCompleted: if (!isHeader) screen.uiView.rowAppeared(branded, indexInSection)

                Component {
                    id: sectionHeader
                    ListHeader { title: rowLoader.title }
                }
                Component {
                    id: foodRow
                    FoodResultRow {
                        title: rowLoader.title
                        brand: rowLoader.brand
                        onOpened: screen.uiView.selectRow(rowLoader.index)
                    }
                }
            }
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
        active: EnvironmentVariables.portionActive !== -1
                && EnvironmentVariables.portionActive === screen.uiView.selectedFood.id
        writesBack: false
        destination: Destinations.SelectPortion
        properties: ({ selectedFood: screen.uiView.selectedFood })
    }
    Connections {
        target: EnvironmentVariables
        function onPortionActiveChanged() { portionLink.rearm() }
    }
}
