import QtQuick

// Placeholder movie: answers the host's variables so start-up can be checked end to end.
Item {
    id: root
    width: 1024
    height: 768
    signal fsCommand(string command, string args)
    function setVariable(name, value) {}
    Rectangle { anchors.fill: parent; color: "#9E1B22" }
}
