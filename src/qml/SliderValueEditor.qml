import QtQuick
import QtQuick.Controls.Material
import Meridax

/// Field to type a number in place of a slider's value. Open it with `begin`; it closes itself on
/// Enter, Escape and the loss of focus.
TextField {
    id: root

    required property real from
    required property real to
    required property color accentColor
    required property string name
    /// The field is open.
    property bool editing: false

    readonly property color _hintColor: "#F57F17"

    /// The typed number, within the range.
    signal committed(newValue: real)
    /// Editing ended by Enter or Escape.
    signal endedByKey()

    function begin(initialText: string) {
        text = initialText;
        editing = true;
        forceActiveFocus();
        selectAll();
    }

    function commit() {
        const typed = Number.parseFloat(text);
        close();
        if (!Number.isNaN(typed))
            committed(Math.max(from, Math.min(to, typed)));
    }

    function close() {
        editing = false;
        hintTimer.stop();
    }

    visible: editing
    implicitWidth: 110
    implicitHeight: 22
    topInset: 0
    topPadding: 0
    bottomPadding: 0
    leftPadding: 4
    rightPadding: 4
    horizontalAlignment: TextInput.AlignHCenter
    font.pixelSize: 12
    // The ground is a dark veil over the panel, which in the light theme comes out mid-grey.
    color: Theme.dark ? "white" : "black"
    selectByMouse: true
    validator: RegularExpressionValidator {
        regularExpression: /^-?\d*[.,]?\d*$/
    }

    Accessible.role: Accessible.EditableText
    Accessible.name: name

    background: Rectangle {
        color: Qt.rgba(0, 0, 0, 0.45)
        radius: 3
        border.width: 1
        border.color: hintTimer.running ? root._hintColor : root.accentColor

        Behavior on border.color {
            ColorAnimation { duration: 150 }
        }
    }

    onTextEdited: {
        if (!text.includes(","))
            return;
        const cursor = cursorPosition;
        text = text.replace(",", ".");
        cursorPosition = cursor;
        hintTimer.restart();
        Accessible.announce(hint.text);
    }
    onActiveFocusChanged: {
        if (!activeFocus && editing)
            commit();
    }
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
            commit();
        else if (event.key === Qt.Key_Escape)
            close();
        else
            return;
        event.accepted = true;
        endedByKey();
    }

    HelpTip {
        wanted: root.hovered && !hintTimer.running
        text: qsTr("Bereich %1 – %2  ·  Punkt (.) als Dezimaltrennzeichen").arg(root.from).arg(root.to)
    }

    Timer {
        id: hintTimer
        interval: 1800
    }

    Rectangle {
        objectName: "commaHint"
        anchors.top: parent.bottom
        anchors.topMargin: 4
        anchors.horizontalCenter: parent.horizontalCenter
        width: hint.implicitWidth + 16
        height: hint.implicitHeight + 8
        radius: 4
        color: root._hintColor
        visible: hintTimer.running

        Label {
            id: hint
            anchors.centerIn: parent
            text: qsTr("Komma → Punkt umgewandelt")
            font.pixelSize: 11
            color: "black"
            Accessible.ignored: true
        }
    }
}
