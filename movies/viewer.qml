import QtQuick
import "components"

// The picture viewer of the roster and award dialogs: vbAddImg shows a picture fitted to the
// box, decoded at the size shown; the empty text clears it.
Item {
    id: root
    width: 189
    height: 152
    signal fsCommand(string command, string args)
    property string path

    function setVariable(name, value) {
        if (name !== "vbAddImg") return
        var f = P.fields(value)
        // A bare path, or the ten fields of a page picture with the path last.
        path = (f.length >= 10 ? f.slice(9).join("|") : String(value || "")).replace(/\\/g, "/")
    }

    function shownPath() { return picture.status === Image.Ready ? path : "" }

    // Announced from the event loop, once the host listens; a movie the host has already
    // replaced stays silent.
    Timer { interval: 0; running: true; onTriggered: root.fsCommand("loadok", "yes") }

    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop { position: 0; color: "#3A0A10" }
            GradientStop { position: 1; color: "#1E0306" }
        }
        border.color: "#80E8C170"
    }
    Column {
        anchors.centerIn: parent
        visible: picture.status !== Image.Ready
        spacing: 6
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "☺"
            color: "#80E8C170"
            font.pixelSize: Math.min(root.width, root.height) * 0.32
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.path === "" ? qsTr("暂无照片") : qsTr("无法显示该图片")
            color: "#C0FFE9C0"
            font.family: "黑体"
            font.pixelSize: Math.max(11, Math.min(root.width, root.height) * 0.09)
        }
    }
    Image {
        id: picture
        anchors.fill: parent
        anchors.margins: 3
        source: root.path === "" ? "" : P.photoUrl(root.path)
        sourceSize.width: Math.ceil(width)
        sourceSize.height: Math.ceil(height)
        asynchronous: true
        cache: false
        fillMode: Image.PreserveAspectFit
    }
}
