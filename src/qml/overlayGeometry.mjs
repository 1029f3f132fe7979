// Geometry of the marks over the live picture, used alike for painting and for the mouse.
//
// Positions are canvas pixels, x to the right, y downwards. Angles are degrees; those of the
// crosshair are measured from straight down towards the right, as atan2(dx, dy) gives them, those
// of the guide from the right, clockwise.
//
// view: { cx, cy, scale }                         centre in canvas pixels, canvas pixels a frame pixel
// circle: { number, enabled, radius }             radius in frame pixels
// cross: { enabled, type, angle }                 angle clockwise on the screen

const EDGE_TOLERANCE = 12; // px
const ARM_TOLERANCE = 7; // degrees
const CENTER_DEAD_ZONE = 24; // px: nearer to the centre a direction is ambiguous
const TINY = 0.000001;
export const MIN_RADIUS = 10; // frame px
export const MAX_RADIUS = 5000;

const radians = degrees => degrees * Math.PI / 180;
const degrees = rad => rad * 180 / Math.PI;
const wrapped = angle => ((angle % 360) + 360) % 360;
const pointerAngle = (px, py, view) => degrees(Math.atan2(px - view.cx, py - view.cy));
const pointerDistance = (px, py, view) => Math.hypot(px - view.cx, py - view.cy);

/// Base angles of the arms: three for type 0, else four.
export function crossBases(type) {
    return type === 0 ? [0, 120, 240] : [0, 90, 180, 270];
}

export function armDegrees(base, crossAngle) {
    return base - crossAngle - 180;
}

/// The point at `distance` pixels from the centre on the arm of `base`.
export function pointOnArm(base, crossAngle, view, distance) {
    const angle = radians(armDegrees(base, crossAngle));
    return Qt.point(view.cx + Math.sin(angle) * distance, view.cy + Math.cos(angle) * distance);
}

/// Lengths in pixels of dashes and gaps for a line style and width; empty for a solid line.
export function dashPattern(style, lineWidth) {
    switch (style) {
    case 1: return [lineWidth * 6, lineWidth * 3];
    case 2: return [lineWidth, lineWidth * 4];
    case 3: return [lineWidth * 6, lineWidth * 3, lineWidth, lineWidth * 3];
    default: return [];
    }
}

/// Number of the enabled circle whose edge is nearest to the pointer within the tolerance, or 0.
export function circleAtEdge(px, py, view, circles) {
    const distance = pointerDistance(px, py, view);
    let nearest = 0;
    let smallest = EDGE_TOLERANCE;
    for (const circle of circles) {
        const delta = Math.abs(distance - circle.radius * view.scale);
        if (circle.enabled && delta < smallest) {
            smallest = delta;
            nearest = circle.number;
        }
    }
    return nearest;
}

/// Base angle of the arm nearest to the pointer's direction within the tolerance, or NaN.
export function crossBaseAt(px, py, view, cross) {
    if (!cross.enabled || pointerDistance(px, py, view) < CENTER_DEAD_ZONE)
        return NaN;
    const mouseDegrees = pointerAngle(px, py, view);
    let nearest = NaN;
    let smallest = ARM_TOLERANCE;
    for (const base of crossBases(cross.type)) {
        const turn = mouseDegrees - armDegrees(base, cross.angle);
        const delta = Math.abs((turn % 360 + 540) % 360 - 180);
        if (delta < smallest) {
            smallest = delta;
            nearest = base;
        }
    }
    return nearest;
}

/// Where the handle lies on the edge of a circle: in the direction of the pointer.
export function edgeHandle(px, py, view, radius) {
    const distance = Math.max(TINY, pointerDistance(px, py, view));
    const length = radius * view.scale / distance;
    return Qt.point(view.cx + (px - view.cx) * length, view.cy + (py - view.cy) * length);
}

/// Radius in frame pixels for a circle edge dragged to the pointer.
export function draggedRadius(px, py, view) {
    const radius = pointerDistance(px, py, view) / Math.max(TINY, view.scale);
    return Math.min(MAX_RADIUS, Math.max(MIN_RADIUS, radius));
}

/// Angle of the crosshair, 0 up to below 360, for the arm of `base` dragged to the pointer.
export function draggedCrossAngle(px, py, view, base) {
    return wrapped(base - 180 - pointerAngle(px, py, view));
}

/// Direction of the measuring position `index` of `total`: the first to the upper right, the
/// others counter-clockwise.
export function guideDegrees(index, total) {
    return -45 - 360 / Math.max(3, total) * index;
}

/// The point at `distance` pixels from (cx, cy) in a direction of the guide.
export function pointTowards(cx, cy, angle, distance) {
    return Qt.point(cx + Math.cos(radians(angle)) * distance,
                    cy + Math.sin(radians(angle)) * distance);
}
