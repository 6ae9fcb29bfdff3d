// qt/dark_desktop.h - whether programs are asked to be dark where the desktop's palette does not say so.
#pragma once

namespace tallyhoop::qt {

#ifdef _WIN32
/// @returns Windows' own switch for programs. Its high contrast is never meant: that comes with colours of its own
bool desktopIsDark();
#else
inline bool desktopIsDark() { return false; }
#endif

} // namespace tallyhoop::qt
