import QtQuick

// Text with the template's soft drop shadow. The shadow is a second, darker copy of the glyphs
// behind the first: it costs nothing on the software renderer and stays crisp at any scale.
Item {
    id: box
    property alias text: face.text
    property alias font: face.font
    property alias color: face.color
    property alias horizontalAlignment: face.horizontalAlignment
    property alias wrapMode: face.wrapMode
    property alias lineHeight: face.lineHeight
    property alias elide: face.elide
    property alias contentWidth: face.contentWidth
    property alias contentHeight: face.contentHeight
    property bool shadow: false
    property color shadowColor: "#99000000"
    property real shadowOffset: Math.max(2, face.font.pixelSize / 18)
    property real textWidth: -1     // wrap width; -1 sizes to the text
    implicitWidth: face.implicitWidth
    implicitHeight: face.implicitHeight

    Text {
        id: shade
        visible: box.shadow
        x: face.x + box.shadowOffset
        y: face.y + box.shadowOffset
        width: face.width
        height: face.height
        text: face.text
        font: face.font
        color: box.shadowColor
        horizontalAlignment: face.horizontalAlignment
        verticalAlignment: face.verticalAlignment
        wrapMode: face.wrapMode
        lineHeight: face.lineHeight
        elide: face.elide
        textFormat: Text.PlainText
    }
    Text {
        id: face
        width: box.textWidth >= 0 ? box.textWidth : (box.width > 0 ? box.width : implicitWidth)
        height: box.height > 0 ? box.height : implicitHeight
        verticalAlignment: Text.AlignVCenter
        textFormat: Text.PlainText
    }
}
