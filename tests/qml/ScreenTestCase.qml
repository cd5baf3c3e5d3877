import QtQuick
import QtTest
import Nutrika
import NutrikaTest

// The frame of every test here: shown in a window, with a fresh session, and a picture of what it shows
// when NUTRIKA_SCREENSHOT_DIR is set.
TestCase {
    width: 400
    height: 720
    when: windowShown
    visible: true

    // The module as its host shows it.
    readonly property Component rootComponent: Component { NutrikaRoot { anchors.fill: parent } }

    function init() { SessionProbe.reset() }

    function shoot(item, name) {
        if (SessionProbe.screenshotDir !== "")
            grabImage(item).save(SessionProbe.screenshotDir + "/" + name + ".png")
    }

    // Waits until `stack` shows `depth` screens and no transition runs.
    function settle(stack, depth) { tryVerify(() => stack.depth === depth && !stack.busy) }
}
