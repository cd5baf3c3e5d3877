import QtQuick
import QtTest
import Nutrika

// The search bar, the number stepper, the picker and the smaller pieces of the screens.
ScreenTestCase {
    id: testCase
    name: "Widgets"

    property var delivered: []

    Component {
        id: barComponent
        SearchBar { x: 10; y: 10; width: 340; onFinishTyping: text => testCase.delivered.push(text) }
    }
    Component {
        id: stepperComponent
        NumberStepperControl { x: 20; y: 20; min: 1; max: 99999; color: "#eeeeee" }
    }
    Component {
        id: gallery
        Column {
            width: 400
            spacing: 12
            property alias picker: picker
            property alias header: header
            CustomPickerUIView {
                id: picker; x: 20; width: 360; options: ["Search", "Meals"]
                property int ownerChoice: 1
                selected: ownerChoice
                onSelect: index => ownerChoice = index
            }
            ListHeader { id: header; width: 400; title: "Non-Branded"; rightTitle: "12" }
            Spinner { size: 60 }
        }
    }
    SignalSpy { id: updates; signalName: "updated" }
    SignalSpy { id: selections; signalName: "select" }

    function init() { delivered = [] }

    function stepper(value) {
        const control = createTemporaryObject(stepperComponent, testCase, { value: value })
        updates.target = control
        updates.clear()
        return control
    }

    // The empty text is handed over at once; a text at Enter, or once typing has paused for a whole second.
    function test_searchBarHandsOverTheText_data() {
        return [{ tag: "nothing typed", keys: "" }, { tag: "quick typing", keys: "rice" },
                { tag: "Enter", keys: "rice", enter: true }]
    }

    function test_searchBarHandsOverTheText(data) {
        const bar = createTemporaryObject(barComponent, testCase)
        findChild(bar, "searchField").forceActiveFocus()
        compare(delivered, [""])
        for (const key of data.keys) {
            keyClick(key)
            wait(150)
        }
        if (data.enter)
            keyClick(Qt.Key_Return)
        else
            wait(600) // well past half a second since the last key
        compare(delivered, data.enter ? ["", "rice"] : [""]) // at Enter, at once
        tryVerify(() => delivered.length === 2, 3000)
        compare(delivered, ["", data.keys])
        shoot(bar, "search-bar")
    }

    function test_searchBarTurnsTheArrowsWhileLoading() {
        const bar = createTemporaryObject(barComponent, testCase)
        const icon = findChild(bar, "searchIcon")
        const magnifier = icon.text
        bar.isLoading = true
        verify(icon.text !== magnifier && bar.isAnimating)
        tryVerify(() => icon.rotation > 0, 2000)
        bar.isLoading = false
        verify(icon.text === magnifier && !bar.isAnimating)
    }

    // What is typed over the selected number, or given at the start, is kept within the bounds.
    function test_stepperNormalisesItsText_data() {
        return [{ tag: "starts at zero", start: "0", keys: "", expected: "1" },
                { tag: "letters and a point", start: "1", keys: "1a.5", expected: "15" },
                { tag: "too large", start: "1", keys: "123456", expected: "99999" }]
    }

    function test_stepperNormalisesItsText(data) {
        const control = stepper(data.start)
        const field = findChild(control, "numberField")
        type(field, data.keys)
        compare(field.text, data.expected)
        compare(control.value, data.expected)
        shoot(control, "number-stepper")
    }

    // A tap, Return or Space steps once, never past a bound.
    function test_stepperStepsOnceWithinTheBounds() {
        const control = stepper("1")
        const minus = findChild(control, "minusButton"), plus = findChild(control, "plusButton")
        mouseClick(minus)
        compare(control.value, "1")
        mouseClick(plus)
        compare(updates.signalArguments.map(a => a[0]), [2])
        plus.forceActiveFocus()
        keyClick(Qt.Key_Return)
        compare(control.value, "3")
        minus.forceActiveFocus()
        keyClick(Qt.Key_Space)
        compare(control.value, "2")
        control.value = "99999"
        mouseClick(plus)
        compare(control.value, "99999")
    }

    // Holding repeats the step, down to the minimum at most, until the release.
    function test_stepperRepeatsWhileHeld() {
        const control = stepper("4")
        const minus = findChild(control, "minusButton")
        mousePress(minus)
        tryCompare(control, "value", "1", 5000)
        verify(control.stepper.isLongPressing)
        mouseRelease(minus)
        verify(!control.stepper.isLongPressing)
    }

    // A finger that slides off a held button leaves the repeat running; a tap on the other button then
    // stops it where it is, however long that finger rests before lifting.
    function test_stepperTapWhileRepeatingStopsWithoutStepping() {
        const control = stepper("60")
        const minus = findChild(control, "minusButton"), plus = findChild(control, "plusButton")
        mousePress(minus)
        tryVerify(() => control.stepper.isLongPressing, 2000)
        mouseMove(minus, minus.width / 2, 200)
        mouseRelease(minus, minus.width / 2, 200)
        tryVerify(() => Number(control.value) <= 50, 3000)
        verify(control.stepper.isLongPressing)
        mousePress(plus)
        const stoppedAt = Number(control.value)
        wait(200)
        mouseRelease(plus)
        verify(!control.stepper.isLongPressing)
        verify(Number(control.value) <= stoppedAt, control.value + " after stopping at " + stoppedAt)
        const settled = control.value
        wait(150)
        compare(control.value, settled)
    }

    // A field emptied by Backspace reads as the minimum at once, and the next digit replaces it.
    function test_stepperTypingAfterClearingReplacesTheMinimum() {
        const control = stepper("5")
        const field = findChild(control, "numberField")
        field.forceActiveFocus()
        field.cursorPosition = field.text.length
        keyClick(Qt.Key_Backspace)
        compare(control.value, "1")
        keyClick("2")
        compare(field.text, "2")
        compare(control.value, "2")
        compare(updates.signalArguments.map(a => a[0]).slice(-1), [2])
    }

    // The picker reports a tap; the owner writes the choice back, so the owner's binding stays in force.
    function test_pickerReportsTheChoiceAndTheOwnerWritesIt() {
        const g = createTemporaryObject(gallery, testCase)
        waitForRendering(g)
        shoot(g, "widgets")
        g.header.title = "Branded"
        compare(g.header.shownTitle, "Non-Branded") // a list header keeps its first title
        const picker = g.picker
        selections.target = picker
        selections.clear()
        const segment = index => picker.children[0].children[index]
        verify(segment(1).isSelected && !segment(0).isSelected)
        mouseClick(segment(0))
        compare(picker.selected, 0)
        picker.ownerChoice = 1
        compare(picker.selected, 1)
        picker.ownerChoice = 0
        compare(selections.signalArguments.map(a => a[0]), [0])
        mouseClick(segment(0)) // the selected option tells the owner again
        compare(selections.count, 2)
        segment(1).forceActiveFocus()
        keyClick(Qt.Key_Return)
        compare(picker.selected, 1)
    }
}
