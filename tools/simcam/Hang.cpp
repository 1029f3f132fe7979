#include "Hang.h"

#include <cerrno>
#include <chrono>
#include <thread>

namespace meridax::simcam {

int hang(const State &state, Param seconds)
{
    using namespace std::chrono;
    if (!state.isOn(seconds))
        return 0;
    const auto start = steady_clock::now();
    while (steady_clock::now() - start < duration<float>(state.get(seconds))) {
        if (state.dead)
            return -ENODEV;
        std::this_thread::sleep_for(milliseconds(5));
    }
    return -static_cast<int>(state.get(Param::HangErrno));
}

} // namespace meridax::simcam
