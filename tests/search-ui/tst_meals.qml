import QtQuick
import QtTest
import Nutrika
import NutrikaTest

// A meal as a person makes and uses it, against the local service and a private preferences store:
// composed from the Meals tab, saved, reopened, renamed, added to the calculator by servings, opened
// from the calculator, and still there after the module is opened again.
TestCase {
    id: testCase
    name: "MealJourney"
    width: 420
    height: 820
    when: windowShown
    visible: true

    readonly property string oatsTitle: "Cereals, oats, regular and quick, unenriched, cooked with water"
    readonly property int bananaId: 9040
    readonly property int mediumBanana: 904005

    Component {
        id: rootComponent
        NutrikaRoot { anchors.fill: parent }
    }

    function init() {
        verify(ServiceProbe.ready)
        ServiceProbe.resetSession()
        SessionProbe.forgetSavedMeals()
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

    function type(field, text) {
        field.forceActiveFocus()
        field.selectAll()
        for (const c of text)
            keyClick(c)
    }

    function tapFood(screen, query, title) {
        type(findChild(screen, "searchField"), query)
        const list = findChild(screen, "results")
        let row = null
        tryVerify(() => {
            for (let i = 0; i < list.count; ++i) {
                const item = list.itemAtIndex(i)
                // The service's description may go on in parentheses ("... water (includes boiling ...").
                if (item && (item.title === title || item.title.startsWith(title + " ("))) {
                    row = item
                    return true
                }
            }
            return false
        }, 8000, "no row " + title)
        mouseClick(row)
    }

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

    // Through the ingredient search, a portion and the preview into the meal; the food.
    function addIngredient(root, editor, query, title, choosePortion, quantity) {
        mouseClick(findChild(editor, "addIngredientsButton"))
        const search = settled(root, 4)
        compare(findChild(findChild(search, "titleBar"), "title").text, "Search Ingredients")
        tapFood(search, query, title)
        const portions = settled(root, 5)
        choosePortion(portions)
        mouseClick(findChild(portions, "selectPortionButton"))
        const preview = settled(root, 6)
        const add = findChild(preview, "addButton")
        compare(add.text, "Add to meal")
        for (let i = 1; i < quantity; ++i)
            mouseClick(findChild(preview, "plusButton"))
        tryVerify(() => findChild(preview, "carbohydratesValue").text !== "", 5000)
        const food = { id: preview.uiView.foodItem.id, description: preview.uiView.description }
        mouseClick(add)
        return food
    }

    function headerLink(editor) { return findChild(editor, "headerLink") }

    function savedNames() {
        const meals = SessionProbe.savedMeals()
        const names = []
        for (let i = 0; i < meals.length; ++i)
            names.push(meals[i].name + "#" + meals[i].id)
        return names
    }

    function mealRows(container) {
        const list = findChild(container, "meals")
        tryVerify(() => list.count === 0 || list.itemAtIndex(0) !== null)
        const rows = []
        for (let i = 0; i < list.count; ++i)
            rows.push(list.itemAtIndex(i))
        return rows
    }

    function openMealsTab(root) {
        const container = settled(root, 2)
        mouseClick(findChild(container, "tabPicker"), 300, 20)
        tryVerify(() => findChild(container, "meals") !== null)
        return container
    }

    function test_aMealFromCreationToTheCalculatorAndBack() {
        // 1. The Meals tab of an empty store says how to begin; "Create Meal" opens a new meal.
        let root = createTemporaryObject(rootComponent, testCase)
        let container = openMealsTab(root)
        tryVerify(() => findChild(container, "noMealsHint").visible)
        shoot(container, "meals-empty")
        mouseClick(findChild(container, "createMealButton"))
        let editor = settled(root, 3)
        compare(editor.uiView.mode, CreateRecipeUIView.New)
        compare(editor.uiView.title, "New Meal")
        verify(!headerLink(editor).visible)

        // 2. Named, two 40 g portions of oats and one medium banana, four servings.
        type(findChild(editor, "nameField"), "Porridge")
        compare(editor.uiView.diaryEntry.title, "Porridge")
        const oats = addIngredient(root, editor, "oats cooked", oatsTitle, portions => {
            mouseClick(portionBox(portions, -1))
            type(findChild(portions, "customAmountField"), "40")
        }, 2)
        editor = settled(root, 3)
        addIngredient(root, editor, "banana", "Bananas, raw",
                      portions => mouseClick(portionBox(portions, mediumBanana)), 1)
        editor = settled(root, 3)
        compare(editor.uiView.ingredients.map(row => row.label),
                [oats.description + "\n(2 X 40.0 g)", "Bananas, raw\n(1 X 118.0 g)"])
        const servings = findChild(editor, "servingsStepper")
        for (let i = 1; i < 4; ++i)
            mouseClick(findChild(servings, "plusButton"))
        compare(editor.uiView.diaryEntry.quantity, 1)
        compare(findChild(editor, "totalWeight").text, "198 g")
        compare(findChild(editor, "onePortion").text, "50 g") // 49.5 rounds up
        shoot(editor, "meal-new-filled")

        // 3. Saved as the first meal; the editor offers it for the calculator.
        mouseClick(findChild(editor, "saveMealButton"))
        compare(savedNames(), ["Porridge#0"])
        compare(SessionProbe.savedMeals()[0].servings, 4)
        compare(editor.uiView.mode, CreateRecipeUIView.Select)
        compare(editor.uiView.lastMode, CreateRecipeUIView.Edit)
        verify(findChild(editor, "addToCalculatorButton").visible)
        compare(headerLink(editor).text, "Edit")

        // 4. Listed; a second meal; the first reopened, edited, renamed and saved in its place.
        mouseClick(findChild(findChild(editor, "titleBar"), "backButton"))
        container = settled(root, 2)
        compare(mealRows(container).map(row => row.title), ["Porridge"])
        verify(!findChild(container, "noMealsHint").visible)
        mouseClick(findChild(container, "createMealButton"))
        editor = settled(root, 3)
        type(findChild(editor, "nameField"), "Tea")
        mouseClick(findChild(editor, "saveMealButton"))
        mouseClick(findChild(findChild(editor, "titleBar"), "backButton"))
        container = settled(root, 2)
        mouseClick(mealRows(container)[0])
        editor = settled(root, 3)
        compare(editor.uiView.mode, CreateRecipeUIView.Select)
        compare(editor.uiView.ingredients.length, 2)
        mouseClick(headerLink(editor))
        compare(editor.uiView.mode, CreateRecipeUIView.Edit)
        compare(headerLink(editor).text, "Cancel")
        type(findChild(editor, "nameField"), "Oat porridge")
        mouseClick(findChild(editor, "saveMealButton"))
        compare(savedNames(), ["Oat porridge#0", "Tea#1"])
        compare(editor.uiView.mode, CreateRecipeUIView.Select)

        // 5. Three servings to the calculator: the line is three times the meal's carbohydrates.
        const oatsLine = round1(2 * ServiceProbe.carbohydrates(oats.id, 40, "grams"))
        const bananaLine = round1(ServiceProbe.carbohydrates(bananaId, 118, "grams"))
        const serving = round1(oatsLine / 4 + bananaLine / 4)
        const line = round1(3 * serving)
        verify(line > 20)
        const quantity = findChild(editor, "quantityStepper")
        mouseClick(findChild(quantity, "plusButton"))
        mouseClick(findChild(quantity, "plusButton"))
        compare(editor.uiView.quantity, "3")
        compare(Number(findChild(editor, "totalCarbohydrates").text.replace(" g", "")), line)
        shoot(editor, "meal-select")
        mouseClick(findChild(editor, "addToCalculatorButton"))
        settled(root, 1)
        const lineList = findChild(root, "lineList")
        tryVerify(() => lineList.count === 1 && lineList.itemAtIndex(0) !== null)
        compare(findChild(lineList.itemAtIndex(0), "lineAmount").text, grams(line))
        compare(findChild(root, "totalAmount").text, grams(line))

        // 6. The line opened from the calculator: view, then "Edit" and "Update" change nothing.
        mouseClick(lineList.itemAtIndex(0))
        editor = settled(root, 2)
        compare(editor.uiView.mode, CreateRecipeUIView.View)
        compare(findChild(editor, "quantityText").text, "3")
        verify(!findChild(editor, "updateButton").visible)
        shoot(editor, "meal-view")
        mouseClick(headerLink(editor))
        verify(findChild(editor, "updateButton").visible)
        mouseClick(findChild(editor, "updateButton"))
        settled(root, 1)
        compare(findChild(root, "totalAmount").text, grams(line))
        compare(EnvironmentVariables.editRecipeActive, false)

        // 7. Closed and opened again: both meals are still listed.
        root.destroy()
        wait(50)
        root = createTemporaryObject(rootComponent, testCase)
        settled(root, 1)
        mouseClick(findChild(root, "searchMoreButton"))
        container = openMealsTab(root)
        compare(mealRows(container).map(row => row.title), ["Oat porridge", "Tea"])
    }
}
