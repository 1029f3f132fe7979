import QtQuick
import Meridax
import "overlayGeometry.mjs" as Geometry

/// The measuring marks over the live picture, and their handling by mouse. Fills the item that
/// shows the picture and takes all its geometry from there.
Canvas {
    id: overlay

    required property VideoFrameItem video
    /// Overlay centre in frame pixels.
    required property point frameCenter
    property bool running: ViewModel.running

    readonly property rect ovlSrc: video.viewSourceRect
    readonly property rect ovlDst: video.viewDestRect
    readonly property real ovlPxScale: ovlSrc.height > 0 ? ovlDst.height / ovlSrc.height : 0
    readonly property real ovlCx: frameCenter.x
    readonly property real ovlCy: frameCenter.y
    readonly property real ovlScx: ovlDst.x + (ovlCx - ovlSrc.x) * ovlPxScale
    readonly property real ovlScy: ovlDst.y + (ovlCy - ovlSrc.y) * ovlPxScale
    readonly property var view: ({ cx: ovlScx, cy: ovlScy, scale: ovlPxScale })

    readonly property var circles: [
        {
            number: 1, enabled: ViewModel.circle1Enabled, radius: ViewModel.circle1Radius,
            color: ViewModel.circle1Color, lineWidth: ViewModel.circle1LineWidth,
            lineStyle: ViewModel.circle1LineStyle
        },
        {
            number: 2, enabled: ViewModel.circle2Enabled, radius: ViewModel.circle2Radius,
            color: ViewModel.circle2Color, lineWidth: ViewModel.circle2LineWidth,
            lineStyle: ViewModel.circle2LineStyle
        },
        {
            number: 3, enabled: ViewModel.circle3Enabled, radius: ViewModel.circle3Radius,
            color: ViewModel.circle3Color, lineWidth: ViewModel.circle3LineWidth,
            lineStyle: ViewModel.circle3LineStyle
        }
    ]
    readonly property var cross: ({
        enabled: ViewModel.crossEnabled, type: ViewModel.crossType, angle: ViewModel.crossAngle,
        color: ViewModel.crossColor, lineWidth: ViewModel.crossLineWidth,
        lineStyle: ViewModel.crossLineStyle
    })

    // 0 and NaN: none.
    property int hoverCircle: 0
    property int dragCircle: 0
    property real hoverCrossBase: NaN
    property real dragCrossBase: NaN
    property point pointer
    readonly property bool dragging: dragCircle > 0 || !isNaN(dragCrossBase)
    readonly property int activeCircle: dragCircle > 0 ? dragCircle : hoverCircle
    readonly property real activeCrossBase: isNaN(dragCrossBase) ? hoverCrossBase : dragCrossBase
    readonly property bool crossActive: !isNaN(activeCrossBase)
    readonly property point handle: handlePosition()
    readonly property real handleX: handle.x
    readonly property real handleY: handle.y

    /// Number of the circle whose edge lies under the point, or 0.
    function circleAtEdge(px: real, py: real): int {
        return Geometry.circleAtEdge(px, py, view, circles);
    }

    /// Base angle of the crosshair arm under the point, or NaN.
    function crossBaseAt(px: real, py: real): real {
        return Geometry.crossBaseAt(px, py, view, cross);
    }

    function handlePosition(): point {
        if (activeCircle > 0)
            return Geometry.edgeHandle(pointer.x, pointer.y, view,
                                       circles[activeCircle - 1].radius);
        if (crossActive)
            return Geometry.pointOnArm(activeCrossBase, cross.angle, view,
                                       Math.min(width, height) * 0.32);
        return Qt.point(0, 0);
    }

    function hoverAt(position: point) {
        pointer = position;
        hoverCircle = circleAtEdge(position.x, position.y);
        hoverCrossBase = hoverCircle > 0 ? NaN : crossBaseAt(position.x, position.y);
    }

    function clearHover() {
        hoverCircle = 0;
        hoverCrossBase = NaN;
    }

    function beginDrag(position: point) {
        dragCircle = circleAtEdge(position.x, position.y);
        dragCrossBase = dragCircle > 0 ? NaN : crossBaseAt(position.x, position.y);
    }

    function dragTo(position: point) {
        pointer = position;
        if (dragCircle > 0) {
            ViewModel[`circle${dragCircle}Radius`] = Geometry.draggedRadius(position.x, position.y,
                                                                           view);
        } else if (!isNaN(dragCrossBase)) {
            ViewModel.crossAngle = Geometry.draggedCrossAngle(position.x, position.y, view,
                                                              dragCrossBase);
        }
    }

    function endDrag() {
        dragCircle = 0;
        dragCrossBase = NaN;
    }

    function setLine(ctx: var, mark: var) {
        // The context counts dashes in line widths, not in pixels.
        const dashes = Geometry.dashPattern(mark.lineStyle, mark.lineWidth);
        ctx.setLineDash(dashes.map(length => length / mark.lineWidth));
        ctx.strokeStyle = mark.color;
        ctx.lineWidth = mark.lineWidth;
    }

    function paintCircle(ctx: var, circle: var) {
        setLine(ctx, circle);
        ctx.beginPath();
        ctx.arc(ovlScx, ovlScy, circle.radius * ovlPxScale, 0, 2 * Math.PI);
        ctx.stroke();
    }

    function paintCross(ctx: var) {
        setLine(ctx, cross);
        ctx.beginPath();
        for (const base of Geometry.crossBases(cross.type)) {
            const end = Geometry.pointOnArm(base, cross.angle, view, Math.max(width, height) * 2);
            ctx.moveTo(ovlScx, ovlScy);
            ctx.lineTo(end.x, end.y);
        }
        ctx.stroke();
    }

    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("Messmarken")

    onPaint: {
        const ctx = getContext("2d");
        ctx.reset();
        if (!running)
            return;
        ctx.save();
        ctx.beginPath();
        ctx.rect(ovlDst.x, ovlDst.y, ovlDst.width, ovlDst.height);
        ctx.clip();
        for (const circle of circles) {
            if (circle.enabled && circle.radius >= 1)
                paintCircle(ctx, circle);
        }
        if (cross.enabled)
            paintCross(ctx);
        ctx.restore();
    }

    onRunningChanged: requestPaint()
    onViewChanged: requestPaint()
    onOvlSrcChanged: requestPaint()
    onOvlDstChanged: requestPaint()
    onCirclesChanged: requestPaint()
    onCrossChanged: requestPaint()
    onWidthChanged: requestPaint()
    onHeightChanged: requestPaint()

    Connections {
        target: ViewModel

        function onCameraSettingsChanged() { overlay.requestPaint(); }
        function onCalibrationActiveChanged() { overlay.requestPaint(); }
        function onFocusTapModeChanged() { overlay.clearHover(); }
        function onGuideStateChanged() { overlay.requestPaint(); }
    }

    HoverHandler {
        id: hoverHandler

        enabled: !overlay.dragging && !ViewModel.focusTapModeActive
        cursorShape: overlay.hoverCircle > 0 ? Qt.SizeAllCursor
                                             : overlay.crossActive ? Qt.OpenHandCursor
                                                                   : Qt.ArrowCursor
        onPointChanged: {
            if (hovered)
                overlay.hoverAt(point.position);
        }
        onHoveredChanged: {
            if (!hovered)
                overlay.clearHover();
        }
    }

    DragHandler {
        enabled: !ViewModel.focusTapModeActive
        target: null
        acceptedButtons: Qt.LeftButton
        // Never from the controls and panels that lie over the picture.
        grabPermissions: PointerHandler.ApprovesTakeOverByAnything
        cursorShape: overlay.dragCircle > 0 ? Qt.SizeAllCursor
                                            : overlay.crossActive ? Qt.OpenHandCursor
                                                                  : Qt.ArrowCursor
        onActiveChanged: active ? overlay.beginDrag(centroid.pressPosition) : overlay.endDrag()
        onCentroidChanged: {
            if (active)
                overlay.dragTo(centroid.position);
        }
    }

    Rectangle {
        objectName: "markHandle"
        visible: overlay.activeCircle > 0 || overlay.crossActive
        x: overlay.handleX - width / 2
        y: overlay.handleY - height / 2
        width: 15
        height: 15
        radius: width / 2
        color: overlay.dragging ? "#4A9ECA" : "#ffffff"
        border.color: "#4A9ECA"
        border.width: 2
    }
    FocusTapArea {
        objectName: "focusTapArea"
        anchors.fill: parent
        frameRect: overlay.ovlSrc
        shownRect: overlay.ovlDst
        pxScale: overlay.ovlPxScale
    }
}
