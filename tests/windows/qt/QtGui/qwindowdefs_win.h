// Stands in for the one QtGui header that only a Windows build of Qt installs: handle types alone,
// enough to compile this project's Windows files.
#pragma once

#define MERIDAX_HANDLE(name)                                                                       \
    struct name##__;                                                                               \
    using name = struct name##__ *

MERIDAX_HANDLE(HINSTANCE);
MERIDAX_HANDLE(HDC);
MERIDAX_HANDLE(HWND);
MERIDAX_HANDLE(HFONT);
MERIDAX_HANDLE(HPEN);
MERIDAX_HANDLE(HBRUSH);
MERIDAX_HANDLE(HBITMAP);
MERIDAX_HANDLE(HICON);
MERIDAX_HANDLE(HPALETTE);
MERIDAX_HANDLE(HRGN);
MERIDAX_HANDLE(HMONITOR);
MERIDAX_HANDLE(HGLRC);
using HCURSOR = HICON;
using HMODULE = HINSTANCE;
using HRESULT = long;
using MSG = struct tagMSG;

#undef MERIDAX_HANDLE
