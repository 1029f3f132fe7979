#include "camera/DirectShowBackend.h"

namespace meridax {

CameraControls platformCameraControls()
{
    return {std::make_shared<DirectShowBackend>(), ControlOrder::QtFirst};
}

} // namespace meridax
