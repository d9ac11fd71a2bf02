import QtQuick
import "proto.js" as P

// A template text (vbAddTxt, 17 or 20 fields): a label on a box or rounded panel.
Item {
    id: obj
    property string objName
    property var vars                 // award variables for $Name1, $Name2, $1, $2
    property bool hideUnfilled: false
    property string rawText
    property color panelColor: "#00000000"
    property real border: 0
    property bool round: false
    property var fontInfo: ({})
    property real lineGap: 0
    property int align: Text.AlignLeft
    property bool shadow: false
    property real placedX: 0
    // The page's middle for a title whose text comes from the console: any length of title
    // stays centred when it is centre-aligned and placed across the middle. -1: as placed.
    property real centreLine: -1
    readonly property bool centred: centreLine >= 0 && align === Text.AlignHCenter
                                    && placedX < centreLine && placedX + width > centreLine
    x: centred ? Math.round(centreLine - width / 2) : placedX

    function apply(f) {
        objName = P.field(f, 1)
        z = P.num(P.field(f, 2))
        placedX = P.num(P.field(f, 3))
        y = P.num(P.field(f, 4))
        opacity = P.alpha(P.field(f, 5, "100"))
        panelColor = P.colour(P.field(f, 6, "0xFFFFFF"), P.field(f, 7, "0"))
        border = Math.max(0, P.num(P.field(f, 8)))
        round = P.field(f, 9) === "round"
        rawText = P.field(f, 10)
        label.font.family = P.field(f, 11, "宋体")
        label.color = P.colour(P.field(f, 12, "0x000000"))
        label.font.pixelSize = Math.max(6, P.num(P.field(f, 13), 16))
        label.font.bold = P.flag(P.field(f, 14))
        label.font.italic = P.flag(P.field(f, 15))
        label.font.underline = P.flag(P.field(f, 16))
        // The three trailing fields are optional: the console sends 17.
        lineGap = f.length > 17 ? P.num(P.field(f, 17)) : 0
        align = f.length > 18 ? P.align(P.field(f, 18)) : Text.AlignLeft
        shadow = f.length > 19 ? P.flag(P.field(f, 19)) : false
    }

    visible: !(hideUnfilled && !vars && P.hasVariables(rawText))
    width: label.implicitWidth + 2 * border
    height: label.implicitHeight + 2 * border

    Rectangle {
        anchors.fill: parent
        color: obj.panelColor
        radius: obj.round ? Math.min(height / 2, obj.border * 2 + 4) : 0
        visible: color.a > 0
    }
    ShadowText {
        id: label
        x: obj.border
        y: obj.border
        text: P.fillVariables(obj.rawText, obj.vars)
        horizontalAlignment: obj.align
        shadow: obj.shadow
        lineHeight: obj.lineGap > 0 ? 1 + obj.lineGap / font.pixelSize : 1
    }
}
