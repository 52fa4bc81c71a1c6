' The code of entry.frm: the category list is filled when the form loads (only its first item is
' saved with the form), and every change of a field is logged.
Option Explicit

cboCategory.AddItem "Travel"
cboCategory.AddItem "Meals"
cboCategory.AddItem "Software"
cboCategory.AddItem "Training"
cboCategory.ListIndex = 0

Sub txtDate_Change()
    WScript.Echo "Date: " & txtDate.Text
End Sub

Sub txtAmount_Change()
    WScript.Echo "Amount: " & txtAmount.Text
End Sub

Sub cboCategory_Change()
    WScript.Echo "Category: " & cboCategory.Text & " (item " & cboCategory.ListIndex & ")"
End Sub

Sub txtNote_Change()
    WScript.Echo "Note: " & txtNote.Text
End Sub

' Amounts take digits and one decimal point only.
Sub txtAmount_KeyPress(KeyAscii)
    If KeyAscii >= 32 And InStr("0123456789.", Chr(KeyAscii)) = 0 Then KeyAscii = 0
End Sub
