' A TolvaList created from VBScript: columns with their default arguments, rows added, read and
' removed, indices of every kind, the list's own error and the collections', and
' SelectionChanged handled by the script.
Option Explicit

Dim failures, selections
failures = 0
selections = 0

Sub Check(actual, expected, what)
    If actual <> expected Then
        WScript.Echo "FAIL " & what & ": got " & actual & ", expected " & expected
        failures = failures + 1
    End If
End Sub

Dim lst
Set lst = WScript.CreateObject("TolvaKit.TolvaList", "lst_")

Sub lst_SelectionChanged()
    selections = selections + 1
End Sub

Check TypeName(lst), "_TolvaList", "type name"
Check lst.ColumnCount, 0, "a new list has no columns"
Check lst.RowHeight, 240, "row height"
Check lst.GridStyle, 1, "grid style"
Check Hex(lst.BackColorHeader), "DEE7EF", "header colour"

lst.AddColumn "Date"
lst.AddColumn "Amount", 1, 1500
Check lst.ColumnCount, 2, "columns"
Check lst.ColumnAlignment(1), 0, "default alignment"
Check lst.ColumnWidth(1), 1200, "default width"
Check lst.ColumnAlignment(2), 1, "right alignment"
Check lst.ColumnText(2), "Amount", "caption"

Dim r
lst.AutoRefresh = False
For r = 1 To 50
    lst.AddRow
    lst.RowText(lst.NewIndex, 1) = "2024-01-" & Right("0" & (r Mod 28 + 1), 2)
    lst.RowText(lst.NewIndex, 2) = FormatNumber(r * 12.5, 2)
    lst.RowData(lst.NewIndex) = r * 100
Next
lst.AutoRefresh = True
Check lst.RowCount, 50, "rows"
Check lst.NewIndex, 50, "NewIndex of an appended row"
lst.AddRow 2
Check lst.NewIndex, 2, "NewIndex of an inserted row"
Check lst.RowText(3, 2), FormatNumber(25, 2), "the rows below moved down"
lst.AddRow 0
Check lst.NewIndex, 0, "NewIndex keeps an out-of-range bBefore"
Check lst.RowData(3), 200, "RowData moved with its row"

lst.ListIndex = 1000
Check lst.ListIndex, 52, "ListIndex clamped to the last row"
lst.ListIndex = 52
Check selections, 1, "SelectionChanged once"
lst.RemoveRow 52
Check lst.ListIndex, 51, "the selection follows a removed last row"
Check selections, 1, "no SelectionChanged for that"

' The list's own error for its checked read, the collections' and the arrays' errors elsewhere.
Dim text
On Error Resume Next
text = lst.RowText(0, 1)
Check Err.Number, -2147199503, "row 0"
Check Err.Source, "RowText", "source of the list's error"
Err.Clear
text = lst.RowText(1E+20, 1)
Check Err.Number, -2147199503, "a huge row"
Err.Clear
text = lst.RowText(1, 3)
Check Err.Number, -2147199503, "column past the last"
Err.Clear
text = lst.RowText("1", 1)
Check Err.Number, 5, "a text row is a key"
Err.Clear
lst.RowText(1, "one") = "x"
Check Err.Number, 13, "a column that is no number"
Err.Clear
lst.ColumnText(5) = "x"
Check Err.Number, 9, "a column past the arrays"
Err.Clear
lst.RemoveRow 99
Check Err.Number, 9, "a row past the end"
Err.Clear
lst.RowData(1) = "many"
Check Err.Number, 13, "RowData takes numbers"
Err.Clear
lst.BorderStyle = 2
Check Err.Number, 380, "a border the list cannot draw"
Err.Clear
On Error GoTo 0

' A negative width is stored as given.
lst.ColumnWidth(1) = -600
Check lst.ColumnWidth(1), -600, "negative width"

lst.ColumnClear
Check lst.ColumnCount, 0, "columns cleared"
Check lst.RowCount, 0, "rows cleared"
Check lst.ColumnText(2), "Amount", "the column arrays stay"

If failures > 0 Then WScript.Quit 1
WScript.Echo "list_basics.vbs passed"
