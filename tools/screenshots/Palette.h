#pragma once

#include <QImage>

/// The same picture with a palette of at most 256 colours, chosen by median cut: the box of colours
/// with the most pixels times its longest side is halved until there are enough. Areas of one
/// colour, of which a window mostly consists, keep theirs.
QImage withPalette(const QImage &picture);
