// Geometry of the two diagrams of a finished calibration, free of painting.
//
// Frame positions and deviations are in frame pixels, everything on the diagrams in canvas pixels;
// x to the right, y downwards, angles in radians, clockwise on the screen.

const SCALE_STEPS = [0.25, 0.5, 1, 2, 5, 10, 20, 50, 100, 200, 500];
const SMALLEST_DRAWN_RADIUS = 20;
const SMALLEST_SIGMA_RADIUS = 2.5;
const SMALLEST_OFFSET_SCALE = 0.5;

/// The full scale for a largest value `v`: stepped, so that it does not drift between two
/// measurements and their pictures stay comparable.
export function niceScale(v) {
    return SCALE_STEPS.find(step => step >= v) ?? SCALE_STEPS[SCALE_STEPS.length - 1];
}

/// Layout of the roundness diagram.
///
/// points: [{ x, y }], fit: { x, y, radius, sigma } with a sigma of 0 for an unknown one;
/// fixedFull: full scale in frame pixels, or 0 for the automatic one. Without at least three points,
/// a radius and room to draw, `drawn` is false and the scales are 1.
///
/// marks: [{ angle, radius, clipped }] sorted by angle; sigmaRadius is 0 for an unknown sigma.
export function roundness(points, fit, width, height, fixedFull) {
    const outer = Math.min(width, height) / 2 - 14;
    if (outer <= SMALLEST_DRAWN_RADIUS || points.length < 3 || fit.radius <= 0)
        return { drawn: false, full: 1, autoFull: 1, marks: [], clipped: false,
                 sigmaRadius: 0, sigmaClamped: false };

    const polar = points.map(point => ({
        angle: Math.atan2(point.y - fit.y, point.x - fit.x),
        deviation: Math.hypot(point.x - fit.x, point.y - fit.y) - fit.radius
    }));
    const maxDeviation = Math.max(1e-9, ...polar.map(mark => Math.abs(mark.deviation)));
    // Also with a fixed scale, whose switch shows both: two equal scales would look like a switch
    // that does nothing.
    const autoFull = niceScale(maxDeviation);
    const full = fixedFull > 0 ? fixedFull : autoFull;
    const base = 0.62 * outer;
    const band = 0.30 * outer;
    const perPixel = band / full;

    const marks = polar.map(mark => {
        const wanted = base + perPixel * mark.deviation;
        const radius = Math.max(3, Math.min(0.99 * outer, wanted));
        return { angle: mark.angle, radius: radius, clipped: radius !== wanted };
    }).sort((a, b) => a.angle - b.angle);

    const sigma = perPixel * fit.sigma;
    return {
        drawn: true, full: full, autoFull: autoFull,
        outer: outer, base: base, band: band, marks: marks,
        clipped: marks.some(mark => mark.clipped),
        sigmaRadius: fit.sigma > 0 ? Math.max(SMALLEST_SIGMA_RADIUS, sigma) : 0,
        sigmaClamped: fit.sigma > 0 && sigma < SMALLEST_SIGMA_RADIUS
    };
}

/// Layout of the diagram that shows where the centre lies on the sensor.
///
/// center: { x, y }, resolution: { width, height } in frame pixels; valid: the centre is a fit's
/// result. `known` tells that there is an offset, `drawn` that there is room to draw it as well.
export function centerOffset(center, resolution, valid, width, height) {
    const outer = Math.min(width, height) / 2 - 16;
    if (resolution.width <= 0 || resolution.height <= 0 || !valid)
        return { known: false, drawn: false, full: 1, x: 0, y: 0, total: 0 };

    const x = center.x - resolution.width / 2;
    const y = center.y - resolution.height / 2;
    const total = Math.hypot(x, y);
    const full = niceScale(Math.max(total, SMALLEST_OFFSET_SCALE));
    return {
        known: true, drawn: outer > SMALLEST_DRAWN_RADIUS, full: full,
        x: x, y: y, total: total, outer: outer,
        markX: outer / full * x, markY: outer / full * y
    };
}

/// One decimal with an explicit sign.
export function signed(v) {
    return (v >= 0 ? "+" : "") + v.toFixed(1);
}
