#pragma once

#include "Planes.h"
#include "SceneInputs.h"

#include <array>
#include <vector>

namespace meridax::simcam {

/// Draws the lit end of a sleeve. Keeps the ground between frames, so that a frame in which only
/// the mark has moved costs two small windows.
class Scene
{
public:
    /// The picture of `inputs` without pixel noise; valid until the next call.
    const Planes &draw(const SceneInputs &inputs);

private:
    struct Window
    {
        int left = 0, top = 0, right = 0, bottom = 0;
    };

    void drawGround(const Picture &picture);
    void drawMark(const SceneInputs &inputs, Point mark, const std::array<float, 257> &tones);
    void restore(const Window &window);

    Ground m_ground;
    Ground::Mix m_mix{};
    SceneInputs m_drawn;
    std::vector<std::uint8_t> m_clean; ///< luma of the ground without any mark
    std::vector<Window> m_dirty;       ///< windows of the marks drawn last
    Planes m_planes;
};

} // namespace meridax::simcam
