import QtQuick
import Nutrika
import NutrikaTest

ScreenTestCase {
    id: testCase
    name: "Calculator"

    Component {
        id: longLinesComponent
        NutrikaRoot { anchors.fill: parent; calculator: CarbCounterUIView { preview: Preview.LongLines } }
    }

    Component {
        id: wideComponent
        NutrikaRoot { width: 1000; height: 900 }
    }

    Component {
        id: previewComponent // the calculator with its sample lines
        NutrikaRoot { anchors.fill: parent; calculator: CarbCounterUIView { preview: Preview.Main } }
    }

    // Every amount rounds to one decimal, halves away from zero: the half burger's 19.35 g shows as 19.4 g.
    function test_previewShowsTheSampleLinesAndRemoveTakesTheTappedLine() {
        const root = createTemporaryObject(previewComponent, testCase)
        tryCompare(findChild(root, "lineList"), "count", 4)
        compare(lineAmounts(root), ["25.8 g", "12.9 g", "77.4 g", "19.4 g"])
        const list = findChild(root, "lineList")
        compare(findChild(list.itemAtIndex(2), "lineTitle").text, "Cheeseburger")
        compare([0, 2].map(i => findChild(list.itemAtIndex(i), "lineTitle").font.bold), [true, false])
        compare(findChild(root, "totalAmount").text, "135.5 g")
        waitForRendering(list)
        shoot(root, "calculator-preview")
        mouseClick(findChild(list.itemAtIndex(0), "removeButton"))
        tryCompare(list, "count", 3)
        compare(lineAmounts(root), ["12.9 g", "77.4 g", "19.4 g"])
        tryCompare(findChild(root, "totalAmount"), "text", "109.7 g")
    }

    // Shown empty, the calculator asks for the search, and again each time it comes back to the front.
    function test_anEmptyCalculatorAsksForTheSearch() {
        const root = createTemporaryObject(rootComponent, testCase)
        const calculator = root.navigation.get(0)
        tryCompare(EnvironmentVariables, "searchActive", true)
        compare(findChild(calculator, "totalAmount").text, "0 g") // a whole number without ".0"
        compare(findChild(calculator, "backRow").visible, false) // neither back nor "Close" here
        settle(root.navigation, 2)
        shoot(root, "calculator-empty-opens-search")
        EnvironmentVariables.searchActive = false
        tryCompare(root.navigation, "depth", 1)
        tryCompare(EnvironmentVariables, "searchActive", true)
        tryCompare(root.navigation, "depth", 2)
    }

    // A change inside a line's entry reaches its amount, the meal holding that entry, and the total. Return
    // on a line's remove button and Enter on "Search more foods" act as taps do.
    function test_linesFollowTheirEntryAndTheKeyboardActs() {
        SessionProbe.addExampleLines()
        const root = createTemporaryObject(rootComponent, testCase)
        compare(lineAmounts(root), ["25.8 g", "19.4 g"])
        const entry = root.calculator.line(0)
        const quantity = entry.quantity
        try {
            entry.quantity = 3
            // The sample meal holds this very entry, so the meal's line moves too.
            tryCompare(findChild(root, "totalAmount"), "text", "64.5 g")
            compare(lineAmounts(root), ["38.7 g", "25.8 g"])
        } finally {
            entry.quantity = quantity // the samples are shared by every test
        }
        compare(EnvironmentVariables.searchActive, false)
        const list = findChild(root, "lineList")
        findChild(list.itemAtIndex(0), "removeButton").forceActiveFocus()
        shoot(root, "calculator-keyboard-focus")
        keyClick(Qt.Key_Return)
        tryCompare(list, "count", 1)
        compare(lineAmounts(root), ["19.4 g"])
        findChild(root, "searchMoreButton").forceActiveFocus()
        keyClick(Qt.Key_Enter)
        compare(EnvironmentVariables.searchActive, true)
    }

    // Each line says what it counts, read with its name and amount as one row; the amounts and the total
    // end in one column, and the total is the largest figure on the screen.
    function test_linesSayWhatTheyCountAndTheTotalStandsOut() {
        SessionProbe.addExampleLines()
        const root = createTemporaryObject(rootComponent, testCase)
        compare(lineDetails(root), ["23 g × 2", "1 serving of 2"])
        compare(smallTargets(root), [])
        const list = findChild(root, "lineList")
        compare(list.itemAtIndex(1).Accessible.name, "Half A Burger, 1 serving of 2, 19.4 g")
        const entry = root.calculator.line(0)
        try {
            entry.quantity = 12
            tryCompare(findChild(list.itemAtIndex(0), "lineDetail"), "text", "23 g × 12")
        } finally {
            entry.quantity = 2 // the samples are shared by every test
        }

        // A screen reader reads the items in stacking order: the lines, then their total.
        const stacked = list.contentItem.children
        tryCompare(stacked, stacked.length - 1 + "", list.footerItem)

        const total = findChild(root, "totalAmount")
        verify(total.font.pixelSize > largestOtherText(root.navigation.get(0), total))
        const rightEdge = item => item.mapToItem(root, item.width, 0).x
        for (let i = 0; i < list.count; ++i)
            compare(rightEdge(findChild(list.itemAtIndex(i), "lineAmount")), rightEdge(total))

        const wide = createTemporaryObject(wideComponent, testCase)
        const wideList = findChild(wide, "lineList")
        tryVerify(() => wideList.itemAtIndex(1) !== null)
        const wideTotal = findChild(wide, "totalAmount")
        compare(rightEdge(findChild(wideList.itemAtIndex(1), "lineAmount")), rightEdge(wideTotal))
        verify(rightEdge(wideTotal) < 1000 - 180) // in sight of the food names on a wide window
        shoot(wide, "calculator-wide")
    }

    // A long name wraps beside its amount rather than running under it, and a large quantity is said.
    function test_aLongLineWrapsBesideItsAmount() {
        const root = createTemporaryObject(longLinesComponent, testCase)
        compare(lineDetails(root), ["1 cup (1 NLEA serving) · 28 g × 12", "1 serving of 2"])
        const line = findChild(root, "lineList").itemAtIndex(0)
        const title = findChild(line, "lineTitle")
        verify(title.lineCount > 1)
        verify(title.mapToItem(line, title.width, 0).x <= findChild(line, "lineAmount").mapToItem(line, 0, 0).x)
        shoot(root, "calculator-long-lines")
    }
}
