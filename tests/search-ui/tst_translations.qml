import QtQuick
import Nutrika
import NutrikaTest
import "../qml"

// Every text a person reads goes through translation: with a translator that marks each translated
// text, every visible text of the journey's screens is marked, a number, or the data it shows. And the
// shipped German reaches the screens.
ScreenTestCase {
    id: testCase
    name: "Translations"

    readonly property int mediumBanana: 904005

    function init() {
        verify(ServiceProbe.ready)
        SessionProbe.reset()
    }

    function cleanup() {
        TranslationProbe.stopMarking(testCase)
        HostSettings.language = ""
    }

    // The visible texts under `item` that were not translated: not marked, holding no digit (amounts,
    // portions), not one of the icon font's symbols and not one of `data`.
    function untranslated(item, data) {
        let found = []
        if (!item || !item.visible)
            return found
        if ((item instanceof Text || item instanceof TextInput) && item.text !== "") {
            const text = String(item.text)
            const symbol = text.length === 1 && text.charCodeAt(0) >= 0xe000 && text.charCodeAt(0) <= 0xf8ff
            if (!text.includes("⟦") && !/\d/.test(text) && !symbol && !data.includes(text))
                found.push(text)
        }
        // The window's overlay, which holds the open popups, is among the children too.
        for (let i = 0; i < item.children.length; ++i)
            found = found.concat(untranslated(item.children[i], data))
        return found
    }

    function check(item, data, screen) {
        const texts = untranslated(item.Window.contentItem, data)
        compare(texts, [], screen + ": " + JSON.stringify(texts))
    }

    function test_everyTextOnTheJourneyIsTranslated() {
        TranslationProbe.markEverything(testCase)
        SessionProbe.addExampleLines()
        const root = createTemporaryObject(rootComponent, testCase)
        settle(root.navigation, 1)
        const lines = root.mealResult.lines.map(line => line.name)
        check(root, lines, "calculator")

        mouseClick(findChild(root, "searchMoreButton"))
        const container = settle(root.navigation, 2)
        check(root, lines, "empty search")
        tapFood(container, "Bananas, raw", "banana")
        const portions = settle(root.navigation, 3)
        check(root, ["Bananas, raw"], "portions")
        mouseClick(portionBox(portions, mediumBanana))
        mouseClick(findChild(portions, "selectPortionButton"))
        const preview = settle(root.navigation, 4)
        tryVerify(() => findChild(preview, "carbohydratesValue").text !== "", 5000)
        check(root, ["Bananas, raw"], "preview")
        mouseClick(findChild(preview, "backButton"))
        settle(root.navigation, 3)
        mouseClick(findChild(settle(root.navigation, 3), "backButton"))
        openMealsTab(root)
        check(root, lines, "meals")
        mouseClick(findChild(container, "createMealButton"))
        settle(root.navigation, 3)
        check(root, [], "new meal")
    }

    function test_germanReachesTheScreens() {
        HostSettings.language = "de"
        SessionProbe.addExampleLines()
        const root = createTemporaryObject(rootComponent, testCase)
        settle(root.navigation, 1)
        compare(findChild(findChild(root, "titleBar"), "title").text, "KH-Rechner")
        compare(findChild(root, "searchMoreButton").text, "Lebensmittel suchen")
        // The grams keep their decimal point and their rounding.
        verify(findChild(root, "totalAmount").text.endsWith(" g"))
    }
}
