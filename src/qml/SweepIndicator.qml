import QtQuick

/// How far a focus sweep has come: a ring that fills clockwise from the top.
Canvas {
    id: root

    /// 0..1
    property real fraction: 0
    readonly property real shownFraction: Math.max(0, Math.min(1, fraction))

    width: 64
    height: 64
    onShownFractionChanged: requestPaint()
    onPaint: {
        const ctx = getContext("2d");
        ctx.reset();
        ctx.lineWidth = 4;
        ctx.lineCap = "round";
        const arc = (part, colour) => {
            ctx.strokeStyle = colour;
            ctx.beginPath();
            ctx.arc(width / 2, height / 2, 27, -Math.PI / 2, -Math.PI / 2 + part * 2 * Math.PI);
            ctx.stroke();
        };
        arc(1, "rgba(255,255,255,0.25)");
        if (shownFraction > 0)
            arc(shownFraction, "#37D067");
    }

    Accessible.role: Accessible.ProgressBar
    // In tenths: a screen reader is not to be told of every step.
    Accessible.name: "%1 %2 %".arg(label.text).arg(Math.round(shownFraction * 10) * 10)

    LiveLabel {
        id: label

        settleTime: 0
        anchors {
            top: parent.bottom
            topMargin: 6
            horizontalCenter: parent.horizontalCenter
        }
        text: qsTr("Fokussiere…")
        color: "#FFFFFF"
        font {
            pixelSize: 12
            bold: true
        }
        style: Text.Outline
        styleColor: Qt.rgba(0, 0, 0, 0.75)
    }
}
