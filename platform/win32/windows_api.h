#pragma once
// <windows.h> for the Windows platform code. The macros that would rename the core's members
// (Canvas::DrawText, ControlSite::MessageBox) in some translation units and not in others are
// removed; Windows code calls the W functions by their full names.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#undef DrawText
#undef MessageBox
