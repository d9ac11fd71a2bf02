import QtQuick

// What the stage shows while the host prepares the draw: a dark red field with a gold ring.
Rectangle {
    id: scene
    gradient: Gradient {
        GradientStop { position: 0; color: "#5A0A12" }
        GradientStop { position: 1; color: "#1E0306" }
    }
    Item {
        anchors.centerIn: parent
        width: 96
        height: 96
        Rectangle {
            anchors.fill: parent
            radius: width / 2
            color: "transparent"
            border.color: "#40E8C170"
            border.width: 6
        }
        Rectangle {
            width: 14
            height: 14
            radius: 7
            color: "#FFE08A"
            x: parent.width / 2 - 7
            y: -4
            transform: Rotation { id: spin; origin.x: 7; origin.y: 52 }
        }
        NumberAnimation {
            target: spin
            property: "angle"
            from: 0
            to: 360
            duration: 1200
            loops: Animation.Infinite
            running: scene.visible
        }
    }
    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.verticalCenter
        anchors.topMargin: 80
        text: qsTr("正在准备抽奖舞台…")
        color: "#FFE9C0"
        font.family: "黑体"
        font.pixelSize: 28
    }
}
