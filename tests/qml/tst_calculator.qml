import QtQuick
import QtTest
import Nutrika
import NutrikaTest

TestCase {
    id: testCase
    name: "Calculator"
    width: 400
    height: 720
    when: windowShown
    visible: true

    Component {
        id: previewComponent
        NutrikaRoot { anchors.fill: parent; calculator: CarbCounterUIView { preview: Preview.Main } }
    }
    Component {
        id: liveComponent
        NutrikaRoot { anchors.fill: parent }
    }

    function init() { SessionProbe.reset() }

    function shoot(item, name) {
        if (SessionProbe.screenshotDir !== "")
            grabImage(item).save(SessionProbe.screenshotDir + "/" + name + ".png")
    }

    // The lines are shown once the list has built a delegate for each.
    function linesOf(root, count) {
        const list = findChild(root, "lineList")
        tryCompare(list, "count", count)
        tryVerify(() => count === 0 || list.itemAtIndex(count - 1) !== null)
        waitForRendering(list)
        return list
    }

    function amounts(list) {
        const texts = []
        for (let i = 0; i < list.count; ++i)
            texts.push(findChild(list.itemAtIndex(i), "lineAmount").text)
        return texts
    }

    function test_previewShowsTheSampleLinesAndTotal() {
        const root = createTemporaryObject(previewComponent, testCase)
        const list = linesOf(root, 4)
        compare(amounts(list), ["25.8 g", "12.9 g", "77.4 g", "19.4 g"])
        compare(findChild(list.itemAtIndex(2), "lineTitle").text, "Cheeseburger")
        compare(findChild(list.itemAtIndex(0), "lineTitle").font.bold, true)
        compare(findChild(list.itemAtIndex(2), "lineTitle").font.bold, false)
        compare(findChild(root, "totalAmount").text, "135.5 g")
        shoot(root, "calculator-preview")
    }

    function test_removeTakesTheTappedLine() {
        const root = createTemporaryObject(previewComponent, testCase)
        const list = linesOf(root, 4)
        mouseClick(findChild(list.itemAtIndex(0), "removeButton"))
        tryCompare(list, "count", 3)
        compare(amounts(list), ["12.9 g", "77.4 g", "19.4 g"])
        tryCompare(findChild(root, "totalAmount"), "text", "109.7 g")
    }

    function test_anEmptyCalculatorAsksForTheSearch() {
        const root = createTemporaryObject(liveComponent, testCase)
        const calculator = root.navigation.get(0)
        tryCompare(EnvironmentVariables, "searchActive", true)
        compare(findChild(calculator, "lineList").count, 0)
        compare(findChild(calculator, "totalAmount").text, "0 g")
        compare(findChild(calculator, "backRow").visible, false) // neither back nor "Close" here
        tryCompare(root.navigation, "depth", 2)
        tryCompare(root.navigation, "busy", false)
        shoot(root, "calculator-empty-opens-search")
        // Back on an empty calculator: shown again, it asks for the search again.
        EnvironmentVariables.searchActive = false
        tryCompare(root.navigation, "depth", 1)
        tryCompare(EnvironmentVariables, "searchActive", true)
        tryCompare(root.navigation, "depth", 2)
    }

    function test_searchMoreFoodsSetsTheFlag() {
        SessionProbe.addExampleLines()
        const root = createTemporaryObject(liveComponent, testCase)
        wait(0)
        compare(EnvironmentVariables.searchActive, false)
        mouseClick(findChild(root, "searchMoreButton"))
        compare(EnvironmentVariables.searchActive, true)
        shoot(root, "calculator-two-lines")
    }

    function test_everyActionWorksFromTheKeyboard() {
        SessionProbe.addExampleLines()
        const root = createTemporaryObject(liveComponent, testCase)
        const list = linesOf(root, 2)
        root.forceActiveFocus()
        keyClick(Qt.Key_Tab)
        verify(list.itemAtIndex(0).activeFocus)
        keyClick(Qt.Key_Tab)
        verify(findChild(list.itemAtIndex(0), "removeButton").activeFocus)
        shoot(root, "calculator-keyboard-focus")
        keyClick(Qt.Key_Return)
        tryCompare(list, "count", 1)
        compare(amounts(list), ["19.4 g"])
        const searchMore = findChild(root, "searchMoreButton")
        searchMore.forceActiveFocus()
        keyClick(Qt.Key_Enter)
        compare(EnvironmentVariables.searchActive, true)
    }

    function test_linesFollowEditsOfTheirEntry() {
        SessionProbe.addExampleLines()
        const root = createTemporaryObject(liveComponent, testCase)
        const list = linesOf(root, 2)
        const entry = root.calculator.line(0)
        const quantity = entry.quantity
        try {
            entry.quantity = 3
            tryCompare(findChild(list.itemAtIndex(0), "lineAmount"), "text", "38.7 g")
            // The sample meal holds this very entry, so the meal's line moves too.
            tryCompare(findChild(list.itemAtIndex(1), "lineAmount"), "text", "25.8 g")
            compare(findChild(root, "totalAmount").text, "64.5 g")
        } finally {
            entry.quantity = quantity // the samples are shared by every test
        }
    }
}
