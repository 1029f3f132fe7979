import QtQuick
import Meridax

/// The ground of the window: a radial gradient from the centre to the corners.
Canvas {
    id: background

    readonly property var darkStops: [
        [0.00, "#3D3D3D"], [0.10, "#3C3C3C"], [0.20, "#3A3A3A"], [0.32, "#383838"],
        [0.45, "#353535"], [0.57, "#313131"], [0.67, "#2C2C2C"], [0.77, "#262626"],
        [0.87, "#212121"], [0.94, "#1D1D1D"], [1.00, "#1A1A1A"]
    ]
    readonly property var lightStops: [
        [0.00, "#F2F2F2"], [0.20, "#EEEEEE"], [0.45, "#E9E9E9"], [0.65, "#E4E4E4"],
        [0.85, "#DEDEDE"], [1.00, "#D8D8D8"]
    ]
    readonly property var stops: Theme.dark ? darkStops : lightStops

    onStopsChanged: requestPaint()
    onWidthChanged: requestPaint()
    onHeightChanged: requestPaint()

    onPaint: {
        const ctx = getContext("2d");
        const cx = width / 2;
        const cy = height / 2;
        const gradient = ctx.createRadialGradient(cx, cy, 0, cx, cy, Math.hypot(cx, cy));
        for (const [offset, color] of stops)
            gradient.addColorStop(offset, color);
        ctx.fillStyle = gradient;
        ctx.fillRect(0, 0, width, height);
    }
}
