import QtQuick
import QtTest
import Nutrika
import NutrikaTest

// The frame of every QML test, here and in search-ui: shown in a window, with a fresh session, a picture
// of what it shows when NUTRIKA_SCREENSHOT_DIR is set, and the steps a person takes.
TestCase {
    width: 420
    height: 820
    when: windowShown
    visible: true

    // The module as its host shows it.
    readonly property Component rootComponent: Component { NutrikaRoot { anchors.fill: parent } }

    function init() { SessionProbe.reset() }

    function shoot(item, name) {
        if (SessionProbe.screenshotDir !== "")
            grabImage(item).save(SessionProbe.screenshotDir + "/" + name + ".png")
    }

    // Waits until `stack` shows `depth` screens and no transition runs; the screen in front.
    function settle(stack, depth) {
        tryVerify(() => stack.depth === depth && !stack.busy, 5000, "depth " + stack.depth + ", not " + depth)
        return stack.currentItem
    }

    // Key by key over what the field holds.
    function type(field, text) {
        field.forceActiveFocus()
        field.selectAll()
        for (const c of text)
            keyClick(c)
    }

    // round1 and the amount text, written independently of the module.
    function round1(x) { return Math.round(x * 10) / 10 }
    function grams(x) { return round1(x) + " g" }

    // The amount of each calculator line, once the list has built them.
    function lineAmounts(root) {
        const list = findChild(root, "lineList")
        tryVerify(() => list.count === 0 || list.itemAtIndex(list.count - 1) !== null)
        return Array.from({ length: list.count }, (_, i) => findChild(list.itemAtIndex(i), "lineAmount").text)
    }

    // What each line says it counts, under its name.
    function lineDetails(root) {
        lineAmounts(root)
        const list = findChild(root, "lineList")
        return Array.from({ length: list.count }, (_, i) => findChild(list.itemAtIndex(i), "lineDetail").text)
    }

    // The largest pixel size of any visible text under `item`, but for the title bar and the buttons.
    function largestOtherText(item, except) {
        let largest = 0
        const visit = node => {
            const isButton = node.symbol !== undefined && node.fillColor !== undefined
            if (!node.visible || node.objectName === "titleBar" || isButton)
                return
            if (node !== except && node.font !== undefined && node.text !== undefined && node.text !== "")
                largest = Math.max(largest, node.font.pixelSize)
            for (let i = 0; i < node.children.length; ++i)
                visit(node.children[i])
        }
        visit(item)
        return largest
    }

    // The names of the visible buttons under `item` smaller than a finger: 44 × 44.
    function smallTargets(item) {
        const small = []
        const visit = node => {
            if (!node.visible)
                return
            const isButton = node.symbol !== undefined && node.fillColor !== undefined
            if (isButton && (node.width < 44 || node.height < 44))
                small.push(node.text + " " + node.width + "x" + node.height)
            for (let i = 0; i < node.children.length; ++i)
                visit(node.children[i])
        }
        visit(item)
        return small
    }

    // Taps the result titled `title`, after typing `query` when given. The service's description may go
    // on in parentheses ("... water (includes boiling ...").
    function tapFood(screen, title, query) {
        if (query)
            type(findChild(screen, "searchField"), query)
        const list = findChild(screen, "results")
        let row = null
        tryVerify(() => {
            for (let i = 0; i < list.count && !row; ++i) {
                const item = list.itemAtIndex(i)
                if (item && (item.title === title || item.title.startsWith(title + " (")))
                    row = item
            }
            return row !== null
        }, 8000, "no row " + title + " among " + list.count)
        mouseClick(row)
    }

    // The grid box of a portion, or of the custom amount (id -1), on the portion screen.
    function portionBox(screen, portionId) {
        const grid = findChild(screen, "portionGrid")
        let box = null
        tryVerify(() => {
            for (let i = 0; i < grid.count && !box; ++i) {
                const cell = grid.itemAtIndex(i)
                if (cell && cell.item && (i === 0 ? -1 : screen.uiView.portionOptions[i - 1].id) === portionId)
                    box = cell.item
            }
            return box !== null
        }, 5000)
        return box
    }

    // Through the ingredient search, a portion and the preview into the meal; the food.
    function addIngredient(root, editor, query, title, choosePortion, quantity) {
        mouseClick(findChild(editor, "addIngredientsButton"))
        const search = settle(root.navigation, 4)
        compare(findChild(findChild(search, "titleBar"), "title").text, "Search Ingredients")
        tapFood(search, title, query)
        const portions = settle(root.navigation, 5)
        choosePortion(portions)
        mouseClick(findChild(portions, "selectPortionButton"))
        const preview = settle(root.navigation, 6)
        const add = findChild(preview, "addButton")
        compare(add.text, "Add to meal")
        for (let i = 1; i < quantity; ++i)
            mouseClick(findChild(preview, "plusButton"))
        tryVerify(() => findChild(preview, "carbohydratesValue").text !== "", 5000)
        const food = { id: preview.uiView.foodItem.id, description: preview.uiView.description }
        mouseClick(add)
        return food
    }

    // The search container over the calculator, on its Meals tab.
    function openMealsTab(root) {
        const container = settle(root.navigation, 2)
        mouseClick(findChild(container, "tabPicker"), 300, 20)
        tryVerify(() => findChild(container, "meals") !== null)
        return container
    }
}
