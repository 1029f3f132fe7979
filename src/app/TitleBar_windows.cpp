#include "app/TitleBar.h"

#include <QWindow>

#include <windows.h>

#include <dwmapi.h>

#include <utility>

namespace meridax {

void darkenTitleBar(QWindow &window)
{
    const auto handle = reinterpret_cast<HWND>(window.winId());
    if (!handle)
        return;
    // DWMWA_USE_IMMERSIVE_DARK_MODE, DWMWA_CAPTION_COLOR, DWMWA_TEXT_COLOR, DWMWA_BORDER_COLOR:
    // as numbers, since older headers lack the names. Older systems refuse them, which is fine.
    constexpr std::pair<DWORD, DWORD> attributes[] = {
        {20, 1}, {35, 0x212121}, {36, 0xFFFFFF}, {34, 0x212121}};
    for (const auto &[attribute, value] : attributes)
        DwmSetWindowAttribute(handle, attribute, &value, sizeof value);
}

} // namespace meridax
