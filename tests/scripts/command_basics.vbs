' A TolvaCommand created from VBScript, set and read back as a script writer would.
Option Explicit

Dim failures
failures = 0

Sub Check(actual, expected, what)
    If actual <> expected Then
        WScript.Echo "FAIL " & what & ": got " & actual & ", expected " & expected
        failures = failures + 1
    End If
End Sub

Dim cmd
Set cmd = CreateObject("TolvaKit.TolvaCommand")
Check TypeName(cmd), "_TolvaCommand", "type name"
Check cmd.Caption, "TolvaCommand1", "caption of a new button"

cmd.Caption = "&Save"
Check cmd.Caption, "&Save", "caption"

cmd.Style = 1 ' tkMenu
Check cmd.Style, 1, "style"
cmd.MenuName = "mnuFile"
Check cmd.MenuName, "mnuFile", "menu name"
cmd.Alignment = 1
Check cmd.Alignment, 1, "alignment"

' System colours are written in hex, which makes them negative Longs.
cmd.BackColor = &H8000000F
Check cmd.BackColor, &H8000000F, "system back colour"
Check Hex(cmd.BackColor), "8000000F", "back colour in hex"
cmd.ForeColor = RGB(255, 0, 0)
Check cmd.ForeColor, 255, "fore colour"
cmd.BackColorActive = &HDEE7EF
cmd.BackColorPushed = "12345"
Check cmd.BackColorPushed, 12345, "colour given as text"

cmd.Enabled = False
Check cmd.Enabled, False, "disabled"
cmd.Enabled = True
Check cmd.Enabled, True, "enabled"

Check cmd.Font.Size, 8.25, "default font size"
cmd.Font.Bold = True
Check cmd.Font.Bold, True, "bold through the font object"
cmd.Font.Size = 12
Check cmd.Font.Size > 11, True, "font size"

Dim f
Set f = cmd.Font
f.Italic = True
Check cmd.Font.Italic, True, "italic through a kept font object"

cmd.Refresh
cmd.AboutBox ' nothing modal without a container

' A wrong value is an error the script can catch.
On Error Resume Next
cmd.Style = "menu"
Check Err.Number, 13, "type mismatch"
Err.Clear
cmd.NoSuchProperty = 1
Check Err.Number, 438, "missing member"
On Error GoTo 0
Check cmd.Style, 1, "style after a refused value"

If failures > 0 Then WScript.Quit 1
WScript.Echo "command_basics.vbs passed"
