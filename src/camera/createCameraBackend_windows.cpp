#include "camera/DirectShowBackend.h"

namespace meridax {

std::unique_ptr<ICameraBackend> createCameraBackend()
{
    return std::make_unique<DirectShowBackend>();
}

ControlOrder controlOrder()
{
    return ControlOrder::QtFirst;
}

} // namespace meridax
