import QtQuick
import QtTest
import Nutrika
import NutrikaTest

// The add flow as a person goes through it, against the local service: search, portion, preview,
// calculator, suggestions, editing a line, and opening the module again.
TestCase {
    id: testCase
    name: "AddFlow"
    width: 420
    height: 820
    when: windowShown
    visible: true

    readonly property int bananaId: 9040
    readonly property int mediumBanana: 904005

    Component {
        id: rootComponent
        NutrikaRoot { anchors.fill: parent }
    }

    function init() {
        verify(ServiceProbe.ready)
        ServiceProbe.resetSession()
    }

    function shoot(item, name) {
        if (ServiceProbe.screenshotDir !== "")
            grabImage(item).save(ServiceProbe.screenshotDir + "/" + name + ".png")
    }

    // round1 and the amount text, written independently of the module.
    function round1(x) { return Math.round(x * 10) / 10 }
    function grams(x) { return round1(x) + " g" }

    function settled(root, depth) {
        tryCompare(root.navigation, "depth", depth, 5000)
        tryCompare(root.navigation, "busy", false)
        return root.navigation.currentItem
    }

    function search(root, text) {
        const container = settled(root, 2)
        const field = findChild(container, "searchField")
        verify(field, "the search container is in front")
        field.forceActiveFocus()
        for (const c of text)
            keyClick(c)
        return container
    }

    function tapFood(container, title) {
        const list = findChild(container, "results")
        let row = null
        tryVerify(() => {
            for (let i = 0; i < list.count; ++i) {
                const item = list.itemAtIndex(i)
                if (item && item.title === title) {
                    row = item
                    return true
                }
            }
            return false
        }, 8000, "no row " + title + " among " + list.count + " rows; field: " + findChild(container, "searchField").text)
        mouseClick(row)
    }

    // The grid box of a portion (or of the custom amount, id -1) on the portion screen.
    function portionBox(screen, portionId) {
        const grid = findChild(screen, "portionGrid")
        let box = null
        tryVerify(() => {
            for (let i = 0; i < grid.count; ++i) {
                const cell = grid.itemAtIndex(i)
                const id = i === 0 ? -1 : screen.uiView.portionOptions[i - 1].id
                if (cell && cell.item && id === portionId) {
                    box = cell.item
                    return true
                }
            }
            return false
        }, 5000)
        return box
    }

    function selectPortion(screen, portionId) {
        mouseClick(portionBox(screen, portionId))
        mouseClick(findChild(screen, "selectPortionButton"))
    }

    function typeCustomGrams(screen, text) {
        mouseClick(portionBox(screen, -1))
        const field = findChild(screen, "customAmountField")
        field.forceActiveFocus()
        field.selectAll()
        for (const c of text)
            keyClick(c)
    }

    function carbsShown(preview) {
        const value = findChild(preview, "carbohydratesValue")
        tryVerify(() => value.text !== "", 5000)
        return value.text
    }

    // The suggestions are built the first time they show.
    function suggestionsShown(root) {
        const popup = findChild(root, "suggestions")
        return popup !== null && popup.visible
    }

    function lineAmounts(root) {
        const list = findChild(root, "lineList")
        const texts = []
        for (let i = 0; i < list.count; ++i) {
            tryVerify(() => list.itemAtIndex(i) !== null)
            texts.push(findChild(list.itemAtIndex(i), "lineAmount").text)
        }
        return texts
    }

    function test_1_theWholeJourney() {
        // 1. An empty calculator opens the search.
        let root = createTemporaryObject(rootComponent, testCase)
        const container = search(root, "banana")

        // 2. The banana, then its pictures: "1 medium" is the 118 g portion.
        tapFood(container, "Bananas, raw")
        let portions = settled(root, 3)
        tryVerify(() => portions.uiView.portionOptions.length > 0, 5000)
        compare(portions.uiView.tabOption, 0)
        const medium = portionBox(portions, mediumBanana)
        compare(medium.portion.size, 118)
        tryVerify(() => findChild(medium, "thumbnail").hasImage, 5000)
        mouseClick(medium)
        verify(medium.selected)
        shoot(portions, "portion-banana")
        mouseClick(findChild(portions, "selectPortionButton"))

        // 3. The preview shows what the service gives for 118 g; two of them double it.
        let preview = settled(root, 4)
        const perPortion = ServiceProbe.carbohydrates(bananaId, 118, "grams")
        verify(perPortion > 20 && perPortion < 35)
        compare(carbsShown(preview), round1(perPortion) + "g")
        mouseClick(findChild(preview, "plusButton"))
        tryCompare(findChild(preview, "carbohydratesValue"), "text", round1(2 * perPortion) + "g")
        shoot(preview, "preview-banana")

        // 4. Added: the line and the total.
        mouseClick(findChild(preview, "addButton"))
        settled(root, 1)
        const banana = round1(2 * perPortion)
        compare(lineAmounts(root), [grams(banana)])
        compare(findChild(root, "totalAmount").text, grams(banana))

        // 5. A second later the suggestions show; the first one is taken through its portions.
        wait(500)
        verify(!suggestionsShown(root))
        tryVerify(() => suggestionsShown(root), 3000)
        const popup = findChild(root, "suggestions")
        const list = findChild(popup.contentItem, "suggestionList")
        tryVerify(() => list.count > 0 && list.itemAtIndex(0) !== null)
        shoot(root, "suggestions-banana")
        const suggestion = list.model[0]
        mouseClick(list.itemAtIndex(0))
        tryVerify(() => !popup.visible)
        portions = settled(root, 2)
        compare(portions.uiView.selectedFood.id, suggestion.id)
        typeCustomGrams(portions, "100")
        mouseClick(findChild(portions, "selectPortionButton"))
        preview = settled(root, 3)
        const extra = round1(ServiceProbe.carbohydrates(suggestion.id, 100, "grams"))
        compare(carbsShown(preview), extra + "g")
        mouseClick(findChild(preview, "addButton"))
        settled(root, 1)
        compare(lineAmounts(root), [grams(banana), grams(extra)])
        compare(findChild(root, "totalAmount").text, grams(banana + extra))

        // 6. The first line, opened and given a custom portion: the line and the total follow.
        tryVerify(() => popup.visible, 3000) // the second food brings its own suggestions
        mouseClick(findChild(popup.contentItem, "noThanksButton"))
        tryVerify(() => !popup.visible)
        compare(root.navigation.depth, 1) // "No Thanks" opens nothing
        compare(EnvironmentVariables.searchActive, false)
        mouseClick(findChild(root, "lineList").itemAtIndex(0))
        preview = settled(root, 2)
        compare(preview.uiView.mode, AddToCalcPreviewUIView.Edit)
        compare(findChild(preview, "quantityStepper").value, "2")
        mouseClick(findChild(preview, "portionLink"))
        portions = settled(root, 3)
        typeCustomGrams(portions, "50")
        mouseClick(findChild(portions, "selectPortionButton"))
        preview = settled(root, 2)
        compare(findChild(preview, "portionLink").text, "50g")
        const fifty = round1(2 * ServiceProbe.carbohydrates(bananaId, 50, "grams"))
        tryCompare(findChild(preview, "carbohydratesValue"), "text", fifty + "g", 5000)
        shoot(preview, "preview-edit")
        mouseClick(findChild(preview, "updateButton"))
        settled(root, 1)
        compare(lineAmounts(root), [grams(fifty), grams(extra)])
        compare(findChild(root, "totalAmount").text, grams(round1(fifty) + extra))
        shoot(root, "calculator-after-journey")

        // 7. Closed and opened again: the lines are kept and the calculator stays in front.
        root.destroy()
        wait(50)
        root = createTemporaryObject(rootComponent, testCase)
        settled(root, 1)
        compare(lineAmounts(root), [grams(fifty), grams(extra)])
    }

    // The module closed with the search open, then opened again: the search is in front again.
    function test_2_reopeningWithTheSearchOpenShowsTheSearch() {
        let root = createTemporaryObject(rootComponent, testCase)
        settled(root, 2)
        wait(300) // no blank food's portions pushed over the search before any tap
        compare(root.navigation.depth, 2)
        root.destroy()
        wait(50)
        root = createTemporaryObject(rootComponent, testCase)
        const container = search(root, "apple")
        mouseClick(findChild(container, "backButton"))
        settled(root, 1)
        mouseClick(findChild(root, "searchMoreButton"))
        settled(root, 2)
    }

    // Going back from a food's portions and tapping it again opens them again; "Search more foods"
    // on the preview returns to the results without adding.
    function test_3_againAfterBackAndSearchMoreFoods() {
        const root = createTemporaryObject(rootComponent, testCase)
        const container = search(root, "banana")
        tapFood(container, "Bananas, raw")
        let portions = settled(root, 3)
        mouseClick(findChild(portions, "backButton"))
        settled(root, 2)
        tapFood(container, "Bananas, raw")
        portions = settled(root, 3)
        // A double tap enlarges the picture; the keyboard alone then chooses: arrows, Space, Enter.
        const box = portionBox(portions, mediumBanana)
        mouseDoubleClickSequence(box)
        const sheet = findChild(box, "fullImageSheet")
        tryVerify(() => sheet.opened)
        tryVerify(() => sheet.picture.hasImage, 5000)
        shoot(portions.Window.contentItem, "portion-full-image")
        keyClick(Qt.Key_Escape)
        tryVerify(() => !sheet.visible)
        const grid = findChild(portions, "portionGrid")
        grid.forceActiveFocus()
        grid.currentIndex = 0
        const index = portions.uiView.portionOptions.findIndex(p => p.id === mediumBanana) + 1
        for (let row = 0; row < Math.floor(index / 2); ++row)
            keyClick(Qt.Key_Down)
        if (index % 2 === 1)
            keyClick(Qt.Key_Right)
        compare(grid.currentIndex, index)
        keyClick(Qt.Key_Space)
        compare(portions.uiView.selectedPortionId, mediumBanana)
        keyClick(Qt.Key_Return)
        const preview = settled(root, 4)
        mouseClick(findChild(preview, "searchMoreButton"))
        settled(root, 2)
        compare(EnvironmentVariables.portionActive, -1)
        compare(findChild(root, "lineList").count, 0)
    }

    // "Continue Adding" opens the search again over the calculator.
    function test_4_continueAddingOpensTheSearch() {
        const root = createTemporaryObject(rootComponent, testCase)
        tapFood(search(root, "banana"), "Bananas, raw")
        selectPortion(settled(root, 3), mediumBanana)
        const preview = settled(root, 4)
        const add = findChild(preview, "addButton")
        carbsShown(preview) // the button waits for the carbohydrates
        tryVerify(() => add.enabled)
        mouseClick(add)
        settled(root, 1)
        tryVerify(() => suggestionsShown(root), 3000)
        const popup = findChild(root, "suggestions")
        mouseClick(findChild(popup.contentItem, "continueAddingButton"))
        tryVerify(() => !popup.visible)
        settled(root, 2)
    }
}
