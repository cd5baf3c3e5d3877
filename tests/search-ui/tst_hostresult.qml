import QtQuick
import QtTest
import Nutrika
import NutrikaTest
import "../qml"

// What a host gets back, with every host option on, against the local service: a meal and a banana
// counted through the screens, the result as the host reads it, KE, net carbohydrates and fat-protein
// units against the service's own nutrients, a removal undone, "Close", and clearing after dosing.
ScreenTestCase {
    id: testCase
    name: "HostResult"

    readonly property int bananaId: 9040
    readonly property int mediumBanana: 904005

    Component {
        id: hostRoot
        NutrikaRoot {
            anchors.fill: parent
            carbUnit: "KE"
            netCarbohydrates: true
            fatProteinUnits: true
            undoRemoval: true
        }
    }

    Component {
        id: recentRoot
        NutrikaRoot {
            anchors.fill: parent
            recentFoods: true
        }
    }

    SignalSpy {
        id: closedSpy
        signalName: "closedWith"
    }

    function init() {
        verify(ServiceProbe.ready)
        SessionProbe.reset()
    }

    // The options belong to the process; the other journeys run without them.
    function cleanup() {
        HostSettings.carbUnit = "g"
        HostSettings.netCarbohydrates = false
        HostSettings.fatProteinUnits = false
        HostSettings.undoRemoval = false
        HostSettings.recentFoods = false
    }

    function mediumBananaHas(nutrient) { return ServiceProbe.nutrient(bananaId, 118, "grams", nutrient) }
    function inKE(g) { return (Math.round(g / 10 * 10) / 10).toFixed(1) + " KE" }
    function lineNotes(root) {
        const list = findChild(root, "lineList")
        return Array.from({ length: list.count }, (_, i) => findChild(list.itemAtIndex(i), "lineNote").text)
    }

    function test_theHostGetsWhatWasCounted() {
        // 1. A meal of one medium banana, one serving, composed and added from the Meals tab.
        const root = createTemporaryObject(hostRoot, testCase)
        closedSpy.target = root
        let container = openMealsTab(root)
        mouseClick(findChild(container, "createMealButton"))
        let editor = settle(root.navigation, 3)
        type(findChild(editor, "nameField"), "Snack")
        addIngredient(root, editor, "banana", "Bananas, raw",
                      portions => mouseClick(portionBox(portions, mediumBanana)), 1)
        editor = settle(root.navigation, 3)
        mouseClick(findChild(editor, "saveMealButton"))
        mouseClick(findChild(editor, "addToCalculatorButton"))
        settle(root.navigation, 1)

        // 2. A medium banana through the search; the preview shows the KE beside the grams.
        mouseClick(findChild(root, "searchMoreButton"))
        container = settle(root.navigation, 2)
        tapFood(container, "Bananas, raw", "banana")
        const portions = settle(root.navigation, 3)
        mouseClick(portionBox(portions, mediumBanana))
        mouseClick(findChild(portions, "selectPortionButton"))
        const preview = settle(root.navigation, 4)
        const carbs = round1(mediumBananaHas("Carbohydrates"))
        verify(carbs > 20 && carbs < 35)
        tryCompare(findChild(preview, "carbohydratesValue"), "text", carbs + "g · " + inKE(carbs), 5000)
        shoot(preview, "preview-ke")
        mouseClick(findChild(preview, "addButton"))
        settle(root.navigation, 1)
        tryVerify(() => findChild(root, "suggestions") !== null && findChild(root, "suggestions").visible, 3000)
        mouseClick(findChild(findChild(root, "suggestions").contentItem, "noThanksButton"))

        // 3. Lines and total in grams and KE; net carbohydrates and fat-protein units from the service's
        // fibre, fat and protein for 118 g.
        const total = round1(2 * carbs)
        compare(lineAmounts(root), [grams(carbs) + " · " + inKE(carbs), grams(carbs) + " · " + inKE(carbs)])
        compare(findChild(root, "totalAmount").text, grams(total))
        compare(findChild(root, "totalUnitAmount").text, inKE(total))
        const fibre = round1(mediumBananaHas("Fibre (AOAC)"))
        verify(fibre > 1)
        compare(lineNotes(root), ["net " + grams(carbs - fibre), "net " + grams(carbs - fibre)])
        const fat = round1(mediumBananaHas("Fat"))
        const protein = round1(mediumBananaHas("Protein"))
        const units = round1((2 * fat * 9 + 2 * protein * 4) / 100)
        compare(findChild(root, "totalNote").text,
                "net " + grams(total - 2 * fibre) + "\n" + units.toFixed(1) + " FPU")
        shoot(root, "calculator-host-options")

        // 4. The host's result: the same lines, portions and figures the calculator shows.
        const result = root.mealResult
        compare(result.lines.map(line => line.name), ["Snack", "Bananas, raw"])
        compare(result.lines.map(line => line.portion), lineDetails(root))
        compare(result.lines.map(line => line.carbohydrates), [carbs, carbs])
        compare(result.lines.map(line => line.quantity), [1, 1])
        compare(result.lines.map(line => line.fibre), [fibre, fibre])
        compare(result.lines.map(line => line.fat), [fat, fat])
        compare(result.totalCarbohydrates, total)

        // 5. A removal can be undone: the line comes back at its place, and the host hears both.
        const list = findChild(root, "lineList")
        mouseClick(findChild(list.itemAtIndex(0), "removeButton"))
        tryVerify(() => findChild(root, "undoBar") !== null)
        compare(findChild(root, "undoBar").Accessible.name, "Removed Snack")
        compare(root.mealResult.lines.map(line => line.name), ["Bananas, raw"])
        shoot(root, "calculator-undo")
        mouseClick(findChild(root, "undoButton"))
        tryVerify(() => findChild(root, "undoBar") === null)
        compare(root.mealResult.lines.map(line => line.name), ["Snack", "Bananas, raw"])
        compare(root.mealResult.totalCarbohydrates, total)

        // 6. "Close" hands the host what was counted.
        mouseClick(findChild(root, "searchMoreButton"))
        container = settle(root.navigation, 2)
        mouseClick(findChild(container, "closeButton"))
        compare(closedSpy.count, 1)
        compare(JSON.stringify(closedSpy.signalArguments[0][0]), JSON.stringify(root.mealResult))

        // 7. Once the host has dosed, it clears the calculator.
        root.clearCalculator()
        compare(root.mealResult.lines.length, 0)
        compare(root.mealResult.totalCarbohydrates, 0)
    }

    // A food added once is offered again before anything is typed; one tap takes its last portion
    // through the preview.
    function test_aRecentFoodIsAddedAgainThroughThePreview() {
        const root = createTemporaryObject(recentRoot, testCase)
        let container = settle(root.navigation, 2)
        verify(!findChild(container, "recentFoods").visible)
        tapFood(container, "Bananas, raw", "banana")
        const portions = settle(root.navigation, 3)
        mouseClick(portionBox(portions, mediumBanana))
        mouseClick(findChild(portions, "selectPortionButton"))
        let preview = settle(root.navigation, 4)
        tryVerify(() => findChild(preview, "carbohydratesValue").text !== "", 5000)
        mouseClick(findChild(preview, "addButton"))
        settle(root.navigation, 1)
        const detail = lineDetails(root)[0]

        mouseClick(findChild(root, "searchMoreButton"))
        container = settle(root.navigation, 2)
        const recent = findChild(container, "recentFoods")
        tryVerify(() => recent.visible)
        const row = findChild(recent, "recentFood")
        compare(row.Accessible.name, "Bananas, raw, " + detail)
        shoot(container, "search-recent-foods")
        mouseClick(row)
        preview = settle(root.navigation, 3)
        const carbs = round1(mediumBananaHas("Carbohydrates"))
        tryCompare(findChild(preview, "carbohydratesValue"), "text", carbs + "g", 5000)
        mouseClick(findChild(preview, "addButton"))
        settle(root.navigation, 1)
        compare(lineAmounts(root), [grams(carbs), grams(carbs)])
        compare(lineDetails(root), [detail, detail])
    }

    // Every option off: the texts are the calculator's own, with nothing beside them.
    function test_withoutOptionsNothingChanges() {
        SessionProbe.addExampleLines()
        const root = createTemporaryObject(rootComponent, testCase)
        settle(root.navigation, 1)
        for (const amount of lineAmounts(root))
            verify(amount.endsWith(" g") && !amount.includes("·"), amount)
        verify(!lineNotes(root).some(note => note !== ""))
        compare(findChild(root, "totalNote").text, "")
        compare(findChild(root, "totalUnitAmount").text, "")
        mouseClick(findChild(findChild(root, "lineList").itemAtIndex(0), "removeButton"))
        verify(findChild(root, "undoBar") === null)
        compare(root.mealResult.lines.length, 1)
    }
}
