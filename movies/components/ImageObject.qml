pragma ComponentBehavior: Bound
import QtQuick
import "proto.js" as P

// A template picture (vbAddImg, 10 fields). Width and height 0 mean the picture's own size;
// isImgFilter adds the mirror reflection below it, fading into the page.
Item {
    id: obj
    property string objName
    property real boxW: 0
    property real boxH: 0
    property bool mirror: false
    property string source

    function apply(f) {
        objName = P.field(f, 1)
        z = P.num(P.field(f, 2))
        x = P.num(P.field(f, 3))
        y = P.num(P.field(f, 4))
        boxW = P.num(P.field(f, 5))
        boxH = P.num(P.field(f, 6))
        opacity = P.alpha(P.field(f, 7, "100"))
        mirror = P.flag(P.field(f, 8))
        // The path is the last field; it may be empty when an award has no picture.
        var path = f.slice(9).join("|")
        // The console sends the program folder alone when an award has no picture.
        source = /[\/\\]$/.test(path) ? "" : P.fileUrl(path)
    }

    readonly property bool ready: picture.status === Image.Ready
    width: boxW > 0 ? boxW : picture.implicitWidth
    height: boxH > 0 ? boxH : picture.implicitHeight

    Image {
        id: picture
        anchors.fill: parent
        source: obj.source
        asynchronous: true
        cache: true
        smooth: true
        mipmap: true
        fillMode: Image.PreserveAspectFit
        sourceSize.width: obj.boxW > 0 ? obj.boxW * 2 : undefined
        sourceSize.height: obj.boxH > 0 ? obj.boxH * 2 : undefined
    }
    Item {
        // The reflection: the picture upside down, fading out over a third of its height in
        // bands of falling opacity (no shader, so it looks the same without a GPU).
        id: reflection
        visible: obj.mirror && picture.status === Image.Ready
        y: obj.height + 4
        width: obj.width
        height: obj.height * 0.35
        readonly property int bands: 12
        Repeater {
            model: reflection.bands
            Item {
                required property int index
                y: index * reflection.height / reflection.bands
                width: reflection.width
                height: Math.ceil(reflection.height / reflection.bands)
                clip: true
                opacity: 0.4 * (1 - index / reflection.bands)
                Image {
                    y: -parent.y
                    width: obj.width
                    height: obj.height
                    source: obj.source
                    asynchronous: true
                    fillMode: Image.PreserveAspectFit
                    sourceSize: picture.sourceSize
                    transform: Scale { origin.y: obj.height / 2; yScale: -1 }
                }
            }
        }
    }
}
