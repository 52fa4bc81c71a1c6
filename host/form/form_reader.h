#pragma once
#include "host/form/form_object.h"
#include <cstddef>
#include <string_view>

namespace tolva {

// Reads a form file in the style of a Visual Basic form (UTF-8):
//
//   VERSION 5.00                                   (optional)
//   Begin VB.Form frmMain
//      Caption         =   "Main"
//      BeginProperty Font                          (a font-valued property)
//         Name            =   "MS Sans Serif"
//         Size            =   8.25
//      EndProperty
//      Begin TolvaKit.TolvaCommand cmdOK           (controls and menus nest)
//         Caption         =   "OK"
//      End
//   End
//   Attribute VB_Name = "frmMain"                  (ignored)
//
// Anything else is refused with a FormSyntaxError naming the line and the reason. The input is
// untrusted: its size, line length, nesting depth and number of objects are bounded.
class FormReader {
public:
    static constexpr size_t MaxTextSize = 1 << 20;
    static constexpr size_t MaxLineLength = 4096;
    static constexpr int MaxDepth = 32;
    static constexpr size_t MaxObjects = 4096;

    static FormObject Read(std::string_view text);
};

} // namespace tolva
