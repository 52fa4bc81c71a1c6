' A TolvaScroll and a TolvaLabel created from VBScript: the label shows the scroll bar's value,
' kept up to date from the scroll bar's Change event.
Option Explicit

Dim failures, changes
failures = 0
changes = 0

Sub Check(actual, expected, what)
    If actual <> expected Then
        WScript.Echo "FAIL " & what & ": got " & actual & ", expected " & expected
        failures = failures + 1
    End If
End Sub

Dim lbl, sb
Set lbl = CreateObject("TolvaKit.TolvaLabel")
Set sb = WScript.CreateObject("TolvaKit.TolvaScroll", "sb_")

Sub sb_Change()
    changes = changes + 1
    lbl.Caption = "Value " & sb.Value
End Sub

Sub sb_Scroll()
    WScript.Echo "FAIL Scroll raised by an assignment"
    failures = failures + 1
End Sub

' The label as a link: pale amber when hot, a pointer glyph after the text.
Check TypeName(lbl), "_TolvaLabel", "label type name"
Check lbl.Caption, "TolvaLabel1", "caption of a new label"
Check lbl.BackColor, 0, "a new label is black"
Check lbl.ForeColorActive, &H9CDFF7, "hot text colour"
lbl.ArrowIcon = 5 ' tkPointerRight
lbl.ArrowPosition = 2 ' tkRight
lbl.Kerning = True
lbl.BorderStyle = 1 ' Inset
lbl.BackColor = &H8000000F
lbl.MenuName = "mnuGoTo"
Check lbl.ArrowIcon, 5, "arrow icon"
Check lbl.ArrowPosition, 2, "arrow position"
Check lbl.Kerning, True, "kerning"
Check lbl.BorderStyle, 1, "border"
Check Hex(lbl.BackColor), "8000000F", "system back colour"
Check lbl.MenuName, "mnuGoTo", "menu name"
lbl.Font.Underline = True
Check lbl.Font.Underline, True, "underlined through the font object"
lbl.Refresh

On Error Resume Next
lbl.BorderStyle = 2
Check Err.Number, 380, "a border the label cannot draw"
Err.Clear
On Error GoTo 0
Check lbl.BorderStyle, 1, "border after a refused value"

' The scroll bar: every accepted Value raises Change, also one that keeps the value.
Check TypeName(sb), "_TolvaScroll", "scroll bar type name"
Check sb.Min, 1, "min"
Check sb.Max, 100, "max"
sb.Max = 200
sb.LargeChange = 20
sb.SmallChange = 5
sb.Value = 40
Check changes, 1, "Change after Value"
Check lbl.Caption, "Value 40", "label updated from Change"
sb.Value = 40
Check changes, 2, "Change when the value stays"

' Refused without a container: no message box, no error, no event.
sb.Value = 500
sb.Min = 300
sb.LargeChange = 1000
Check sb.Value, 40, "value after a refused one"
Check sb.Min, 1, "min after a refused one"
Check sb.LargeChange, 20, "page after a refused one"
Check changes, 2, "no Change for refused values"

' A new bound pulls the value in without Change.
sb.Max = 30
Check sb.Value, 30, "value clamped to max"
Check changes, 2, "no Change from a bound"
Check lbl.Caption, "Value 40", "label untouched by a bound"

sb.BackColor = RGB(200, 210, 220)
Check sb.BackColor, RGB(200, 210, 220), "scroll bar colour"
sb.Refresh

If failures > 0 Then WScript.Quit 1
WScript.Echo "scroll_label_basics.vbs passed"
