import QtQuick
import Nutrika
import NutrikaTest
import "../qml"

// The add flow as a person goes through it, against the local service: search, portions, preview,
// calculator, suggestions, editing a line, and opening the module again.
ScreenTestCase {
    id: testCase
    name: "AddFlow"

    readonly property int bananaId: 9040
    readonly property int mediumBanana: 904005

    function init() {
        verify(ServiceProbe.ready)
        SessionProbe.reset()
    }

    function carbsShown(preview) {
        const value = findChild(preview, "carbohydratesValue")
        tryVerify(() => value.text !== "", 5000)
        return value.text
    }

    // Built the first time they show.
    function suggestionsShown(root) {
        const popup = findChild(root, "suggestions")
        return popup !== null && popup.visible
    }

    function typeCustomGrams(screen, text) {
        mouseClick(portionBox(screen, -1))
        type(findChild(screen, "customAmountField"), text)
        mouseClick(findChild(screen, "selectPortionButton"))
    }

    function test_theWholeJourney() {
        // 1. An empty calculator opens the search. Closed with the search open and opened again, the
        // search is in front again, and no blank food's portions come over it before any tap.
        let root = createTemporaryObject(rootComponent, testCase)
        settle(root.navigation, 2)
        root.destroy()
        wait(50)
        root = createTemporaryObject(rootComponent, testCase)
        const container = settle(root.navigation, 2)
        wait(300)
        compare(root.navigation.depth, 2)

        // 2. The banana's portions; back, and the same row tapped again opens them again.
        tapFood(container, "Bananas, raw", "banana")
        mouseClick(findChild(settle(root.navigation, 3), "backButton"))
        settle(root.navigation, 2)
        tapFood(container, "Bananas, raw")
        let portions = settle(root.navigation, 3)

        // 3. "1 medium" is the pictured 118 g portion. A double tap enlarges the picture; the keyboard
        // alone then chooses: arrows, Space, Enter.
        // The screen, and the enlarged picture, say which food the portions are of.
        compare(findChild(portions, "foodName").text, "Bananas, raw")
        compare(portions.uiView.tabOption, 0)
        const box = portionBox(portions, mediumBanana)
        compare(box.portion.size, 118)
        const medium118 = box.portion.description + " · 118 g"
        tryVerify(() => findChild(box, "thumbnail").hasImage, 5000)
        mouseDoubleClickSequence(box)
        const sheet = findChild(box, "fullImageSheet")
        tryVerify(() => sheet.opened)
        tryVerify(() => sheet.picture.hasImage, 5000)
        compare(findChild(sheet.contentItem, "sheetFoodName").text, "Bananas, raw")
        compare(smallTargets(sheet.contentItem), [])
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
        verify(portionBox(portions, mediumBanana).current)
        keyClick(Qt.Key_Return)

        // 4. The preview shows what the service gives for 118 g. "Search more foods" returns to the
        // results without adding.
        let preview = settle(root.navigation, 4)
        const perPortion = ServiceProbe.carbohydrates(bananaId, 118, "grams")
        verify(perPortion > 20 && perPortion < 35)
        compare(carbsShown(preview), round1(perPortion) + "g")
        // The figure a dose is taken from is the largest on the screen, next to its label.
        const carbs = findChild(preview, "carbohydratesValue")
        verify(carbs.font.pixelSize > largestOtherText(preview, carbs))
        mouseClick(findChild(preview, "searchMoreButton"))
        settle(root.navigation, 2)
        compare(EnvironmentVariables.portionActive, -1)
        compare(lineAmounts(root), [])

        // 5. Once more with the mouse; two portions double the carbohydrates, and Add makes the line.
        tapFood(container, "Bananas, raw")
        portions = settle(root.navigation, 3)
        const medium = portionBox(portions, mediumBanana)
        mouseClick(medium)
        verify(medium.selected)
        // Marked as chosen, and no keyboard ring left on another box.
        verify(findChild(medium, "selectedMark").visible)
        verify(!portionBox(portions, -1).current)
        shoot(portions, "portion-banana")
        mouseClick(findChild(portions, "selectPortionButton"))
        preview = settle(root.navigation, 4)
        mouseClick(findChild(preview, "plusButton"))
        tryCompare(findChild(preview, "carbohydratesValue"), "text", round1(2 * perPortion) + "g")
        shoot(preview, "preview-banana")
        mouseClick(findChild(preview, "addButton"))
        settle(root.navigation, 1)
        const banana = round1(2 * perPortion)
        compare(lineAmounts(root), [grams(banana)])
        compare(lineDetails(root), [medium118 + " × 2"])
        compare(findChild(root, "totalAmount").text, grams(banana))

        // 6. A second later the suggestions show; the first one is taken through its portions.
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
        portions = settle(root.navigation, 2)
        compare(portions.uiView.selectedFood.id, suggestion.id)
        compare(findChild(portions, "foodName").text, suggestion.description)
        typeCustomGrams(portions, "100")
        preview = settle(root.navigation, 3)
        const extra = round1(ServiceProbe.carbohydrates(suggestion.id, 100, "grams"))
        compare(carbsShown(preview), extra + "g")
        mouseClick(findChild(preview, "addButton"))
        settle(root.navigation, 1)
        compare(lineAmounts(root), [grams(banana), grams(extra)])
        compare(lineDetails(root), [medium118 + " × 2", "100 g"])
        compare(findChild(root, "totalAmount").text, grams(banana + extra))

        // 7. The second food brings its own suggestions. "Continue Adding" opens the search; back on the
        // calculator they show again, and "No Thanks" opens nothing.
        tryVerify(() => popup.visible, 3000)
        mouseClick(findChild(popup.contentItem, "continueAddingButton"))
        tryVerify(() => !popup.visible)
        mouseClick(findChild(settle(root.navigation, 2), "backButton"))
        settle(root.navigation, 1)
        tryVerify(() => popup.visible, 3000)
        mouseClick(findChild(popup.contentItem, "noThanksButton"))
        tryVerify(() => !popup.visible)
        compare(root.navigation.depth, 1)
        compare(EnvironmentVariables.searchActive, false)

        // 8. The first line, opened and given a custom portion: the line and the total follow.
        mouseClick(findChild(root, "lineList").itemAtIndex(0))
        preview = settle(root.navigation, 2)
        compare(preview.uiView.mode, AddToCalcPreviewUIView.Edit)
        compare(findChild(preview, "quantityStepper").value, "2")
        mouseClick(findChild(preview, "portionLink"))
        typeCustomGrams(settle(root.navigation, 3), "50")
        preview = settle(root.navigation, 2)
        compare(findChild(preview, "portionLink").text, "50g")
        const fifty = round1(2 * ServiceProbe.carbohydrates(bananaId, 50, "grams"))
        tryCompare(findChild(preview, "carbohydratesValue"), "text", fifty + "g", 5000)
        shoot(preview, "preview-edit")
        compare(smallTargets(preview), [])
        mouseClick(findChild(preview, "updateButton"))
        settle(root.navigation, 1)
        compare(lineAmounts(root), [grams(fifty), grams(extra)])
        compare(lineDetails(root), ["50 g × 2", "100 g"])
        compare(findChild(root, "totalAmount").text, grams(fifty + extra))
        shoot(root, "calculator-after-journey")

        // 9. Closed and opened again: the lines are kept and the calculator stays in front.
        root.destroy()
        wait(50)
        root = createTemporaryObject(rootComponent, testCase)
        settle(root.navigation, 1)
        compare(lineAmounts(root), [grams(fifty), grams(extra)])
    }

    // On a desktop window the boxes stop growing, so several rows show; the other tab keeps the chosen
    // box in view.
    function test_aWideWindowShowsSeveralRowsAndKeepsTheChoiceInView() {
        const window = testCase.Window.window
        const narrow = [window.width, window.height]
        window.width = 1000
        window.height = 900
        try {
            pickOnAWideWindow()
        } finally {
            [window.width, window.height] = narrow
        }
    }

    function pickOnAWideWindow() {
        const root = createTemporaryObject(wideComponent, testCase)
        tapFood(settle(root.navigation, 2), "Bananas, raw", "banana")
        const portions = settle(root.navigation, 3)
        const grid = findChild(portions, "portionGrid")
        const medium = portionBox(portions, mediumBanana)
        verify(medium.width <= 216) // a 200-pixel thumbnail and its frame
        verify(grid.height / grid.cellHeight >= 2.5)
        root.height = 700 // the last row of boxes below the fold
        grid.positionViewAtEnd()
        const options = portions.uiView.portionOptions
        const lastPictured = options[options.length - 1].id
        mouseClick(portionBox(portions, lastPictured))
        compare(portions.uiView.selectedPortionId, lastPictured)
        portions.uiView.tabOption = 1
        const inView = () => {
            const box = portionBox(portions, lastPictured)
            const top = box.mapToItem(grid, 0, 0).y
            return top >= 0 && top + box.height <= grid.height
        }
        grid.contentY = 0
        portions.uiView.tabOption = 0
        tryVerify(inView)
        shoot(portions, "portion-wide-images")
    }

    Component {
        id: wideComponent
        NutrikaRoot { width: 1000; height: 900 }
    }
}
