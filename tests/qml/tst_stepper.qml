import QtQuick
import QtTest
import Nutrika
import NutrikaTest

TestCase {
    id: testCase
    name: "NumberStepper"
    width: 300
    height: 120
    when: windowShown
    visible: true

    Component {
        id: stepperComponent
        NumberStepperControl { x: 20; y: 20; min: 1; max: 99999; color: "#eeeeee" }
    }
    SignalSpy { id: updates; signalName: "updated" }

    function make(value) {
        const control = createTemporaryObject(stepperComponent, testCase, { value: value })
        updates.target = control
        updates.clear()
        return control
    }

    function test_startsNormalised() {
        const control = make("0")
        compare(control.value, "1")
        compare(findChild(control, "numberField").text, "1")
        if (SessionProbe.screenshotDir !== "")
            grabImage(control).save(SessionProbe.screenshotDir + "/number-stepper.png")
    }

    function test_tapsStepOnceAndStopAtTheBounds() {
        const control = make("1")
        mouseClick(findChild(control, "minusButton"))
        compare(control.value, "1")
        mouseClick(findChild(control, "plusButton"))
        compare(control.value, "2")
        compare(updates.count, 1)
        compare(updates.signalArguments[0][0], 2)
    }

    function test_typedTextIsNormalised_data() {
        return [
            { tag: "letters", keys: "12a", expected: "12" },
            { tag: "zero", keys: "0", expected: "1" },
            { tag: "point", keys: "1.5", expected: "15" },
            { tag: "too large", keys: "123456", expected: "99999" },
        ]
    }

    function test_typedTextIsNormalised(data) {
        const control = make("1")
        const field = findChild(control, "numberField")
        field.forceActiveFocus()
        field.selectAll()
        for (const key of data.keys)
            keyClick(key)
        compare(field.text, data.expected)
        compare(control.value, data.expected)
    }

    function test_holdingRepeatsUntilRelease() {
        const control = make("10")
        const minus = findChild(control, "minusButton")
        mousePress(minus)
        wait(100)
        compare(control.value, "10") // not yet a long press
        tryCompare(control, "value", "1", 5000)
        verify(control.stepper.isLongPressing)
        mouseRelease(minus)
        verify(!control.stepper.isLongPressing)
        wait(150)
        compare(control.value, "1")
    }

    function test_aTapStopsTheRepeatWithoutStepping() {
        const control = make("5")
        const plus = findChild(control, "plusButton")
        mousePress(plus)
        tryVerify(() => control.stepper.isLongPressing, 3000)
        tryVerify(() => Number(control.value) > 5, 3000)
        mouseRelease(plus)
        const stopped = control.value
        wait(200)
        compare(control.value, stopped)
        verify(Number(stopped) > 5)
    }

    function test_keyboardSteps() {
        const control = make("5")
        const plus = findChild(control, "plusButton")
        plus.forceActiveFocus()
        keyClick(Qt.Key_Return)
        compare(control.value, "6")
        keyClick(Qt.Key_Backtab)
        keyClick(Qt.Key_Backtab)
        verify(findChild(control, "minusButton").activeFocus)
        keyClick(Qt.Key_Space)
        compare(control.value, "5")
    }
}
