pragma ComponentBehavior: Bound
import QtQuick

// The designer's selection: a frame around the target object with eight handles that stay the
// same size on screen at every zoom. A handle reports the edges it moves ("l", "r", "t", "b")
// and the pointer in the parent's (the page's) coordinates.
Item {
    id: frame
    property var target: null
    property real zoom: 1
    property bool resizable: true
    signal grabbed(string edges, real px, real py)
    signal dragged(real px, real py)
    signal dropped()

    readonly property real handle: 9 / zoom
    visible: target !== null
    x: target ? target.x : 0
    y: target ? target.y : 0
    width: target ? target.width : 0
    height: target ? target.height : 0

    Rectangle {
        anchors.fill: parent
        anchors.margins: -1 / frame.zoom
        color: "transparent"
        border.color: "#FF2D9CDB"
        border.width: 1.5 / frame.zoom
    }

    Repeater {
        model: frame.resizable ? ["lt", "t", "rt", "r", "rb", "b", "lb", "l"] : []
        Rectangle {
            id: knob
            required property string modelData
            readonly property real fx: modelData.indexOf("l") >= 0 ? 0
                                       : modelData.indexOf("r") >= 0 ? 1 : 0.5
            readonly property real fy: modelData.indexOf("t") >= 0 ? 0
                                       : modelData.indexOf("b") >= 0 ? 1 : 0.5
            x: frame.width * fx - width / 2
            y: frame.height * fy - height / 2
            width: frame.handle
            height: frame.handle
            color: "white"
            border.color: "#FF2D9CDB"
            border.width: 1.5 / frame.zoom
            MouseArea {
                anchors.fill: parent
                anchors.margins: -3 / frame.zoom
                cursorShape: knob.fx === 0.5 ? Qt.SizeVerCursor
                           : knob.fy === 0.5 ? Qt.SizeHorCursor
                           : (knob.fx === knob.fy ? Qt.SizeFDiagCursor : Qt.SizeBDiagCursor)
                function onPage(mouse) { return mapToItem(frame.parent, mouse.x, mouse.y) }
                onPressed: function (mouse) {
                    var p = onPage(mouse)
                    frame.grabbed(knob.modelData, p.x, p.y)
                }
                onPositionChanged: function (mouse) {
                    var p = onPage(mouse)
                    frame.dragged(p.x, p.y)
                }
                onReleased: frame.dropped()
                onCanceled: frame.dropped()
            }
        }
    }
}
