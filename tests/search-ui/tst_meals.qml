import QtQuick
import Nutrika
import NutrikaTest
import "../qml"

// A meal as a person makes and uses it, against the local service and a private preferences store:
// composed from the Meals tab, saved, reopened, renamed, added to the calculator by servings, opened
// from the calculator, and still there after the module is opened again.
ScreenTestCase {
    id: testCase
    name: "MealJourney"

    readonly property string oatsTitle: "Cereals, oats, regular and quick, unenriched, cooked with water"
    readonly property int bananaId: 9040
    readonly property int mediumBanana: 904005

    function init() {
        verify(ServiceProbe.ready)
        SessionProbe.reset()
    }

    function headerLink(editor) { return findChild(editor, "headerLink") }

    function savedNames() { return Array.from(SessionProbe.savedMeals(), meal => meal.name + "#" + meal.id) }

    function mealRows(container) {
        const list = findChild(container, "meals")
        tryVerify(() => list.count === 0 || list.itemAtIndex(list.count - 1) !== null)
        return Array.from({ length: list.count }, (_, i) => list.itemAtIndex(i))
    }

    function test_aMealFromCreationToTheCalculatorAndBack() {
        // 1. The Meals tab of an empty store says how to begin; "Create Meal" opens a new meal.
        let root = createTemporaryObject(rootComponent, testCase)
        let container = openMealsTab(root)
        tryVerify(() => findChild(container, "noMealsHint").visible)
        shoot(container, "meals-empty")
        mouseClick(findChild(container, "createMealButton"))
        let editor = settle(root.navigation, 3)
        compare(editor.uiView.mode, CreateRecipeUIView.New)
        compare(editor.uiView.title, "New Meal")
        verify(!headerLink(editor).visible)

        // 2. Named, two 40 g portions of oats and one medium banana, four servings.
        type(findChild(editor, "nameField"), "Porridge")
        const oats = addIngredient(root, editor, "oats cooked", oatsTitle, portions => {
            mouseClick(portionBox(portions, -1))
            type(findChild(portions, "customAmountField"), "40")
        }, 2)
        editor = settle(root.navigation, 3)
        addIngredient(root, editor, "banana", "Bananas, raw",
                      portions => mouseClick(portionBox(portions, mediumBanana)), 1)
        editor = settle(root.navigation, 3)
        compare(editor.uiView.ingredients.map(row => row.label),
                [oats.description + "\n(2 X 40.0 g)", "Bananas, raw\n(1 X 118.0 g)"])
        const servings = findChild(editor, "servingsStepper")
        for (let i = 1; i < 4; ++i)
            mouseClick(findChild(servings, "plusButton"))
        compare(findChild(editor, "totalWeight").text, "198 g")
        // The weights end in one column, and each stepper is named for what it counts.
        const rightEdge = item => item.mapToItem(editor, item.width, 0).x
        const firstRow = findChild(editor, "ingredientList").itemAtIndex(0)
        compare(rightEdge(findChild(firstRow, "ingredientWeight")), rightEdge(findChild(editor, "totalWeight")))
        compare(findChild(servings, "numberField").Accessible.name, "Servings")
        compare(findChild(servings, "plusButton").Accessible.name, "Increase Servings")
        compare(findChild(editor, "onePortion").text, "50 g") // 49.5 rounds up
        shoot(editor, "meal-new-filled")

        // 3. Saved as the first meal; the editor offers it for the calculator.
        mouseClick(findChild(editor, "saveMealButton"))
        compare(savedNames(), ["Porridge#0"])
        compare(SessionProbe.savedMeals()[0].servings, 4)
        compare(editor.uiView.mode, CreateRecipeUIView.Select)
        verify(findChild(editor, "addToCalculatorButton").visible)
        compare(headerLink(editor).text, "Edit")

        // 4. Listed; a second meal; the first reopened, edited, renamed and saved in its place.
        mouseClick(findChild(findChild(editor, "titleBar"), "backButton"))
        container = settle(root.navigation, 2)
        compare(mealRows(container).map(row => row.title), ["Porridge"])
        verify(!findChild(container, "noMealsHint").visible)
        mouseClick(findChild(container, "createMealButton"))
        editor = settle(root.navigation, 3)
        type(findChild(editor, "nameField"), "Tea")
        // Without ingredients the meal says how to add them, and cannot be saved yet.
        verify(findChild(editor, "noIngredients").visible)
        verify(!findChild(editor, "saveMealButton").enabled)
        mouseClick(findChild(editor, "saveMealButton"))
        compare(savedNames(), ["Porridge#0"])
        shoot(editor, "meal-new-empty")
        addIngredient(root, editor, "banana", "Bananas, raw",
                      portions => mouseClick(portionBox(portions, mediumBanana)), 1)
        editor = settle(root.navigation, 3)
        verify(!findChild(editor, "noIngredients").visible)
        mouseClick(findChild(editor, "saveMealButton"))
        mouseClick(findChild(findChild(editor, "titleBar"), "backButton"))
        container = settle(root.navigation, 2)
        mouseClick(mealRows(container)[0])
        editor = settle(root.navigation, 3)
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
        for (let i = 1; i < 3; ++i)
            mouseClick(findChild(findChild(editor, "quantityStepper"), "plusButton"))
        compare(editor.uiView.quantity, "3")
        const totalCarbs = findChild(editor, "totalCarbohydrates")
        compare(Number(totalCarbs.text.replace(" g", "")), line)
        verify(totalCarbs.font.pixelSize > largestOtherText(editor, totalCarbs)) // the figure to dose from
        shoot(editor, "meal-select")
        mouseClick(findChild(editor, "addToCalculatorButton"))
        settle(root.navigation, 1)
        compare(lineAmounts(root), [grams(line)])
        compare(findChild(root, "totalAmount").text, grams(line))

        // 6. The line opened from the calculator: view, then "Edit" and "Update" change nothing.
        mouseClick(findChild(root, "lineList").itemAtIndex(0))
        editor = settle(root.navigation, 2)
        compare(editor.uiView.mode, CreateRecipeUIView.View)
        compare(findChild(editor, "quantityText").text, "3")
        verify(!findChild(editor, "updateButton").visible)
        shoot(editor, "meal-view")
        mouseClick(headerLink(editor))
        verify(findChild(editor, "updateButton").visible)
        mouseClick(findChild(editor, "updateButton"))
        settle(root.navigation, 1)
        compare(findChild(root, "totalAmount").text, grams(line))
        compare(EnvironmentVariables.editRecipeActive, false)

        // 7. Closed and opened again: both meals are still listed.
        root.destroy()
        wait(50)
        root = createTemporaryObject(rootComponent, testCase)
        settle(root.navigation, 1)
        mouseClick(findChild(root, "searchMoreButton"))
        container = openMealsTab(root)
        compare(mealRows(container).map(row => row.title), ["Oat porridge", "Tea"])
    }
}
