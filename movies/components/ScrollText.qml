import QtQuick
import "proto.js" as P

// A scrolling text (vbAddStxt, 21 or 22 fields) in its panel: right to left, left to right or
// bottom to top, at SrcV. The draw screen's winner line (scr_luckls) shows `override` instead
// of its stored text.
Item {
    id: obj
    property string objName
    property var vars
    property bool hideUnfilled: false
    property string rawText
    property string override
    property bool useOverride: false
    property int direction: 0
    property real speed: 1
    property bool shadow: false
    readonly property string shown: P.fillVariables(useOverride ? override : rawText, vars)
    clip: true
    visible: !(hideUnfilled && !vars && P.hasVariables(useOverride ? override : rawText))

    function apply(f) {
        objName = P.field(f, 1)
        z = P.num(P.field(f, 2))
        direction = P.num(P.field(f, 3))
        x = P.num(P.field(f, 4))
        y = P.num(P.field(f, 5))
        width = Math.max(1, P.num(P.field(f, 6), 280))
        height = Math.max(1, P.num(P.field(f, 7), 20))
        panel.color = P.colour(P.field(f, 8, "0xFFFFFF"), P.field(f, 9, "50"))
        panel.radius = P.field(f, 10) === "round" ? Math.min(height / 2, P.num(P.field(f, 11))) : 0
        rawText = P.field(f, 12)
        opacity = P.alpha(P.field(f, 13, "100"))
        label.font.family = P.field(f, 14, "宋体")
        label.color = P.colour(P.field(f, 15, "0x000000"))
        label.font.pixelSize = Math.max(6, P.num(P.field(f, 16), 14))
        label.font.bold = P.flag(P.field(f, 17))
        label.font.italic = P.flag(P.field(f, 18))
        label.font.underline = P.flag(P.field(f, 19))
        speed = P.num(P.field(f, 20), 1)
        shadow = f.length > 21 ? P.flag(P.field(f, 21)) : false
        restart()
    }

    // Pixels per second for SrcV 0 to 10: 0 stands still.
    readonly property real pixelsPerSecond: speed <= 0 ? 0 : 25 + speed * 22
    readonly property bool vertical: direction === 2

    function position() { return [label.x, label.y] }

    function restart() {
        run.stop()
        if (pixelsPerSecond <= 0) {
            label.x = vertical ? (width - label.width) / 2 : Math.max(0, (width - label.width) / 2)
            label.y = (height - label.height) / 2
            return
        }
        var from, to, distance
        if (vertical) {
            label.x = Math.max(0, (width - label.width) / 2)
            from = height; to = -label.height; distance = height + label.height
        } else {
            label.y = (height - label.height) / 2
            if (direction === 1) { from = -label.width; to = width }
            else { from = width; to = -label.width }
            distance = width + label.width
        }
        run.target = label
        run.property = vertical ? "y" : "x"
        run.from = from
        run.to = to
        run.duration = Math.max(200, distance / pixelsPerSecond * 1000)
        run.start()
    }

    onShownChanged: Qt.callLater(restart) // qmllint disable type
    onWidthChanged: Qt.callLater(restart) // qmllint disable type

    Rectangle { id: panel; anchors.fill: parent }
    ShadowText {
        id: label
        text: obj.shown
        shadow: obj.shadow
        wrapMode: obj.vertical ? Text.Wrap : Text.NoWrap
        textWidth: obj.vertical ? obj.width - 8 : -1
        width: obj.vertical ? obj.width - 8 : implicitWidth
        horizontalAlignment: obj.vertical ? Text.AlignHCenter : Text.AlignLeft
    }
    NumberAnimation { id: run; loops: Animation.Infinite }
}
