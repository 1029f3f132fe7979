#pragma once

#include <QSize>

#include <span>

namespace meridax {

/// What the choice of a capture format looks at.
struct FormatCandidate
{
    QSize size;                ///< px
    float maxFrameRate = 0.0f; ///< frames per second, 0 when unknown
    bool jpeg = false;         ///< compressed frame by frame
};

/// Index of the format nearest to `wanted`, -1 for an empty list. Ties go to the higher frame rate
/// and, at equal rates, to the compressed format. Each frame per second below 15 costs as much as
/// 100 px of size; an unknown rate costs nothing.
int chooseFormat(std::span<const FormatCandidate> formats, QSize wanted);

} // namespace meridax
