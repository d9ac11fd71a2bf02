import QtQuick
import "proto.js" as P

// An animation (vbAddSwf, 8 fields): animated GIF, WebP or PNG. A file the stage cannot play
// shows the block picture at 128 by 128, as a missing file does.
Item {
    id: obj
    property string objName
    property real boxW: 0
    property real boxH: 0
    property string source
    readonly property url blockPicture: Qt.resolvedUrl("../../skin/Src/block.png")
    readonly property bool playable: /\.(gif|webp|png|apng)$/i.test(source)

    function apply(f) {
        objName = P.field(f, 1)
        z = P.num(P.field(f, 2))
        x = P.num(P.field(f, 3))
        y = P.num(P.field(f, 4))
        boxW = P.num(P.field(f, 5))
        boxH = P.num(P.field(f, 6))
        source = P.fileUrl(f.slice(7).join("|"))
    }

    readonly property bool failed: !playable || movie.status === AnimatedImage.Error
    width: failed ? 128 : (boxW > 0 ? boxW : movie.implicitWidth)
    height: failed ? 128 : (boxH > 0 ? boxH : movie.implicitHeight)

    AnimatedImage {
        id: movie
        anchors.fill: parent
        visible: !obj.failed
        source: obj.playable ? obj.source : ""
        playing: visible
        cache: false
        fillMode: Image.PreserveAspectFit
    }
    Image {
        anchors.fill: parent
        visible: obj.failed
        source: obj.failed ? obj.blockPicture : ""
    }
}
