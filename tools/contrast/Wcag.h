#pragma once

#include <QColor>

/// `colour` with its alpha laid over the opaque `ground`, in sRGB as the scene graph blends.
QColor laidOver(const QColor &colour, const QColor &ground);

/// Contrast of two opaque colours, 1 to 21, after WCAG 2.2 ("contrast ratio").
double contrastRatio(const QColor &a, const QColor &b);
