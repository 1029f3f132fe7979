#include "camera/ICameraBackend.h"

namespace meridax {

std::unique_ptr<ICameraBackend> createCameraBackend()
{
    return nullptr;
}

ControlOrder controlOrder()
{
    return ControlOrder::QtFirst;
}

} // namespace meridax
