#pragma once

namespace meridax {

/// Gives links in Markdown the accent of the interface: QML has no say in it, and the platform's
/// own colour is made for white ground. Called once, before the interface is made.
void setLinkColor();

} // namespace meridax
