// Contrast of text on its ground, after WCAG 2.2.

/// Relative luminance of a colour, 0 to 1.
function luminance(color) {
    const linear = part => part <= 0.04045 ? part / 12.92 : Math.pow((part + 0.055) / 1.055, 2.4);
    return 0.2126 * linear(color.r) + 0.7152 * linear(color.g) + 0.0722 * linear(color.b);
}

/// Black or white, whichever reads better on `ground`; one of them always reaches 4.5 to 1.
export function textOn(ground) {
    // Here both have the same contrast: (L + 0.05)² = 0.05 * 1.05.
    return luminance(ground) > 0.179 ? "black" : "white";
}
