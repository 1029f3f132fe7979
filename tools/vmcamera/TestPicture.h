#pragma once

#include "Bytes.h"
#include "Formats.h"
#include "simcam/Planes.h"

#include <array>

namespace meridax::vmcamera {

/// What the controls make of the picture.
struct PictureValues
{
    int brightness = 0; ///< added [grey levels]
    double focus = 1.0; ///< 1 sharp, 0 all structure blurred away

    bool operator==(const PictureValues &) const = default;
};

/// Makes the frames: a grey ramp under a fine pattern of squares. A bar moves along the upper edge,
/// so that frames differ but the sharpness of what is below does not.
///
/// Encoding takes most of the time, so the bar has a few places only and the frames are kept.
class TestPicture
{
public:
    /// Frame `number` in the given format and size; valid until the next call.
    const Bytes &frame(Coding coding, const FrameMode &mode, const PictureValues &values,
                       unsigned number);

private:
    struct Content
    {
        Coding coding;
        unsigned width;
        unsigned height;
        PictureValues values;

        bool operator==(const Content &) const = default;
    };
    static constexpr unsigned kPlaces = 4;

    void draw(const Content &content, unsigned place);

    Content m_content{};
    std::array<Bytes, kPlaces> m_frames;
    simcam::Planes m_planes;
};

} // namespace meridax::vmcamera
