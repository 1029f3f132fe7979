#pragma once

#include <memory>
#include <utility>

namespace meridax {

/// An object that is never destroyed: what threads, static destructors and a crash may still ask
/// for after main() has returned.
template <typename T, typename... Arguments>
T *immortal(Arguments &&...arguments)
{
    return std::make_unique<T>(std::forward<Arguments>(arguments)...).release();
}

} // namespace meridax
