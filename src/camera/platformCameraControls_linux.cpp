#include "camera/V4l2Backend.h"

namespace meridax {

// On V4L2, Qt 6.8 writes manual exposure where it is told automatic, writes focus 0 with each call
// that concerns the focus, which moves the motor, and cannot switch automatic exposure back on.
// What the backend has taken must therefore not pass through QCamera.
CameraControls platformCameraControls()
{
    return {std::make_shared<V4l2Backend>(), ControlOrder::BackendFirst};
}

} // namespace meridax
