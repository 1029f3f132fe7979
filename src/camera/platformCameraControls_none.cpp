#include "camera/ICameraBackend.h"

namespace meridax {

CameraControls platformCameraControls()
{
    return {};
}

} // namespace meridax
