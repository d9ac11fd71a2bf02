import QtQuick
import QtQuick.Controls

// One button of the on-stage bar: a round gold-rimmed key with a glyph and a caption.
AbstractButton {
    id: button
    property string glyph
    property string caption
    property string tip
    property bool accent: false
    objectName: name
    property string name
    implicitWidth: Math.max(62, implicitBackgroundWidth + 16)
    implicitHeight: 72
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    ToolTip.visible: hovered && tip.length > 0
    ToolTip.text: tip
    ToolTip.delay: 400

    contentItem: Item {}
    background: Column {
        topPadding: 2
        spacing: 4
        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 44
            height: 44
            radius: 22
            scale: button.pressed ? 0.92 : (button.hovered ? 1.08 : 1)
            Behavior on scale { NumberAnimation { duration: 120 } }
            gradient: Gradient {
                GradientStop { position: 0; color: button.accent ? "#FFE9A8" : "#C8283A" }
                GradientStop { position: 1; color: button.accent ? "#E0A526" : "#7A0E1C" }
            }
            border.width: 2
            border.color: button.hovered ? "#FFF3C4" : "#E8C170"
            Text {
                anchors.centerIn: parent
                text: button.glyph
                color: button.accent ? "#7A0010" : "#FFE9A8"
                font.pixelSize: 20
                font.bold: true
                font.family: "DejaVu Sans"
            }
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: button.caption
            color: "#FFF4D6"
            font.pixelSize: 14
            font.family: "黑体"
        }
    }
}
