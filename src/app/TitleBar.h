#pragma once

class QWindow;

namespace meridax {

/// Gives the native title bar of `window` its dark colours where the platform allows it. They stay
/// dark in both themes on purpose.
void darkenTitleBar(QWindow &window);

} // namespace meridax
