pragma ComponentBehavior: Bound
import QtQuick

// The on-stage button bar. Which buttons show follows the draw state (changBtn); the sound and
// screen buttons come in pairs that swap on each press. It fades out while the mouse rests and
// returns on the first move.
Item {
    id: bar
    property string state_: "defulte"      // the last changBtn value
    property bool landing: false            // the cells are still settling, nothing stored yet
    property bool soundOn: true
    property bool fullScreen: true
    property bool awake: true
    signal pressed(string name)
    height: 96
    width: row.width + 48

    readonly property var sets: ({
        "defulte": ["btnStart", "btnPre", "btnNext", "btnAdd", "btnGiveUp", "btnLstPrt",
                    "btnLstOut", "btnPlayLuck"],
        "clear": ["btnStart", "btnPre", "btnNext", "btnAdd", "btnGiveUp", "btnLstPrt",
                  "btnLstOut", "btnPlayLuck"],
        "start": ["btnStop", "btnClear"],
        "stop": ["btnStart", "btnCancel", "btnPre", "btnNext", "btnAdd", "btnGiveUp",
                 "btnLstPrt", "btnLstOut", "btnPlayLuck"],
        "luckplay": ["btnPlayLuck"]
    })
    readonly property var info: ({
        "btnStart": ["▶", "开始", "开始抽奖"],
        "btnStop": ["■", "停止", "停止抽奖"],
        "btnClear": ["✕", "取消", "取消本次滚动"],
        "btnCancel": ["↶", "撤消", "撤消本批中奖"],
        "btnGiveUp": ["⚑", "放弃", "放弃中奖"],
        "btnAdd": ["+", "补抽", "补抽奖项"],
        "btnPre": ["⇤", "上一项", "上一个奖项"],
        "btnNext": ["⇥", "下一项", "下一个奖项"],
        "btnLstPrt": ["▤", "打印", "打印中奖名单"],
        "btnLstOut": ["⇩", "导出", "导出中奖名单"],
        "btnPlayLuck": ["★", "播放", "播放中奖名单"],
        "btnSoundOn": ["♪", "静音", "关闭声音"],
        "btnSoundOff": ["♫", "声音", "打开声音"],
        "btnScreenN": ["❐", "窗口", "退出全屏"],
        "btnScreenF": ["▣", "全屏", "全屏显示"],
        "btnExit": ["⎋", "退出", "退出抽奖"]
    })

    function visibleNames() {
        // While the winners land nothing is stored yet: only sound, screen and exit stay.
        var names = landing ? [] : (sets[state_] || sets["defulte"]).slice()
        names.push(soundOn ? "btnSoundOn" : "btnSoundOff")
        names.push(fullScreen ? "btnScreenN" : "btnScreenF")
        names.push("btnExit")
        return names
    }

    // Presses a button as a click would; the pairs swap.
    function press(name) {
        if (name === "btnSoundOn") soundOn = false
        else if (name === "btnSoundOff") soundOn = true
        else if (name === "btnScreenN") fullScreen = false
        else if (name === "btnScreenF") fullScreen = true
        bar.pressed(name)
    }

    opacity: awake ? 1 : 0
    visible: opacity > 0
    Behavior on opacity { NumberAnimation { duration: 450; easing.type: Easing.InOutQuad } }

    Rectangle {
        anchors.fill: parent
        radius: 30
        gradient: Gradient {
            GradientStop { position: 0; color: "#D9300810" }
            GradientStop { position: 1; color: "#E6180408" }
        }
        border.color: "#B3E8C170"
        border.width: 1.5
    }
    Row {
        id: row
        anchors.centerIn: parent
        spacing: 6
        Repeater {
            model: bar.visibleNames()
            StageButton {
                required property string modelData
                name: modelData
                glyph: bar.info[modelData][0]
                caption: bar.info[modelData][1]
                tip: bar.info[modelData][2]
                accent: modelData === "btnStart" || modelData === "btnStop"
                onClicked: bar.press(modelData)
            }
        }
    }
}
