#include "camera/ICameraBackend.h"

namespace meridax {

std::unique_ptr<ICameraBackend> createCameraBackend()
{
    return nullptr;
}

} // namespace meridax
