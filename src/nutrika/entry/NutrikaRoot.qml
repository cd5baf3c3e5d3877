import QtQuick
import Nutrika

// The module's root: one navigation stack over the calculator. Escape goes back one screen.
FocusScope {
    id: root

    property CarbCounterUIView calculator: CarbCounterUIView {}
    readonly property alias navigation: navigation
    // The food-data service key and origin for every request of the process; left empty, the ones
    // already set stay.
    property string apiKey
    property url serviceOrigin
    // The host's options for every screen of the process; each is off until the host turns it on.
    property alias carbUnit: options.carbUnit
    property alias netCarbohydrates: options.netCarbohydrates
    property alias fatProteinUnits: options.fatProteinUnits
    property alias undoRemoval: options.undoRemoval
    property alias recentFoods: options.recentFoods
    // "de", "fr" or "en"; empty follows the system's locale.
    property alias language: options.language
    // The calculator's lines and total: {lines: [{name, portion, quantity, carbohydrates, fibre, fat,
    // protein}], totalCarbohydrates}; an unknown nutrient is null.
    readonly property var mealResult: NutrikaHost.mealResult

    // The host's callback, for a host that embeds this item in QML.
    signal dismissCallback()
    // "Close" was tapped: what was counted, before dismissCallback.
    signal closedWith(var mealResult)

    // Empties the calculator, for a host that has dosed from it.
    function clearCalculator() { NutrikaHost.clearCalculator() }

    QtObject {
        id: options
        property string carbUnit: HostSettings.carbUnit
        property bool netCarbohydrates: HostSettings.netCarbohydrates
        property bool fatProteinUnits: HostSettings.fatProteinUnits
        property bool undoRemoval: HostSettings.undoRemoval
        property bool recentFoods: HostSettings.recentFoods
        property string language: HostSettings.language
        onCarbUnitChanged: HostSettings.carbUnit = carbUnit
        onNetCarbohydratesChanged: HostSettings.netCarbohydrates = netCarbohydrates
        onFatProteinUnitsChanged: HostSettings.fatProteinUnits = fatProteinUnits
        onUndoRemovalChanged: HostSettings.undoRemoval = undoRemoval
        onRecentFoodsChanged: HostSettings.recentFoods = recentFoods
        onLanguageChanged: HostSettings.language = language
    }

    Connections {
        target: NutrikaHost
        function onClosedWith(mealResult) { root.closedWith(mealResult) }
    }

    Connections {
        target: root.calculator
        function onDismissCallback() { root.dismissCallback() }
    }

    Binding {
        target: EnvironmentVariables.serviceClient
        property: "apiKey"
        value: root.apiKey
        when: root.apiKey !== ""
        restoreMode: Binding.RestoreNone
    }

    Binding {
        target: EnvironmentVariables.serviceClient
        property: "origin"
        value: root.serviceOrigin
        when: String(root.serviceOrigin) !== ""
        restoreMode: Binding.RestoreNone
    }

    Keys.onEscapePressed: event => {
        if (navigation.depth > 1 && navigation.currentItem.presentationMode)
            navigation.currentItem.presentationMode.dismiss()
        else
            event.accepted = false
    }

    Rectangle {
        anchors.fill: parent
        color: Look.detailColor
    }

    NavigationStack {
        id: navigation
        objectName: "navigation"
        anchors.fill: parent
        focus: true
        initialItem: CarbCounterScreen {
            uiView: root.calculator
            navigation: navigation
        }
    }
}
