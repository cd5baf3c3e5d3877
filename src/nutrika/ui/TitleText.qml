import QtQuick
import Nutrika

// A heading inside a screen's content: the title verbatim, title size, bold, in "TitleText".
Text {
    property string title: ""

    text: title
    font.pixelSize: Look.titleSize
    font.bold: true
    color: Look.titleText
    Accessible.role: Accessible.Heading
    Accessible.name: title
}
