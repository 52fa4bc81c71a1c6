' A TolvaTabs created from VBScript: tabs added, read and removed by index, a Change handler that
' refuses one tab through rCancel, and the run time's subscript error for an index outside them.
Option Explicit

Dim failures, changes, refuse, seen
failures = 0
changes = 0
refuse = 0

Sub Check(actual, expected, what)
    If actual <> expected Then
        WScript.Echo "FAIL " & what & ": got " & actual & ", expected " & expected
        failures = failures + 1
    End If
End Sub

Dim tt
Set tt = WScript.CreateObject("TolvaKit.TolvaTabs", "tt_")

' The handler reads the new selection; it refuses the tab numbered refuse.
Sub tt_Change(rCancel)
    changes = changes + 1
    seen = tt.SelectedItem
    If tt.SelectedItem = refuse Then rCancel = True
End Sub

Check TypeName(tt), "_TolvaTabs", "type name"
Check tt.TabCount, 0, "a new strip has no tabs"
Check tt.SelectedItem, -1, "and none selected"
Check tt.TabWidth, 1700, "tab width"
Check Hex(tt.BackColorInactive), "CEDBDE", "inactive colour"

tt.AddItem "&General"
tt.AddItem "&Accounts"
tt.AddItem "&Reports"
tt.TabData(2) = 1001
Check tt.TabCount, 3, "three tabs"
Check tt.Tabs(2), "&Accounts", "caption of tab 2"

tt.SelectedItem = 2
Check changes, 1, "Change on a new selection"
Check seen, 2, "the handler reads the new tab"
tt.SelectedItem = 2
Check changes, 1, "no Change for the same tab"

refuse = 3
tt.SelectedItem = 3
Check changes, 2, "Change for the refused tab"
Check seen, 3, "the refused tab was readable in the handler"
Check tt.SelectedItem, 2, "rCancel takes it back"

tt.RemoveItem 3
Check tt.TabCount, 3, "the last tab cannot be removed"
tt.RemoveItem 1
Check tt.TabCount, 2, "tab 1 removed"
Check tt.Tabs(1), "&Accounts", "tab 2 moved down"
Check tt.TabData(1), 1001, "with its data"

On Error Resume Next
Dim caption
caption = tt.Tabs(7)
Check Err.Number, 9, "an index past the tabs"
Check Err.Description, "Subscript out of range", "its description"
Err.Clear
tt.TabData(-1) = 5
Check Err.Number, 9, "a negative index"
Err.Clear
On Error GoTo 0

tt.Clear
Check tt.TabCount, 0, "cleared"
Check tt.SelectedItem, 2, "the selection stays a number"
tt.Refresh

If failures > 0 Then WScript.Quit 1
WScript.Echo "tabs_basics.vbs passed"
