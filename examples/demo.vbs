' The code of demo.frm. TolvaHost runs it with the form, its controls and its menus visible by
' name; WScript.Echo writes a line to the event log.
Option Explicit

Dim okClicks
okClicks = 0

Sub cmdOK_Click()
    okClicks = okClicks + 1
    WScript.Echo "OK pressed " & okClicks & " time(s)"
End Sub

Sub cmdReport_MouseDown(Button, Shift, X, Y)
    WScript.Echo "Report pressed with button " & Button & " at " & X & ", " & Y & " twips"
End Sub

Sub cmdSaveClose_Click()
    cmdSaveClose.Caption = "Saved && &Close"
End Sub

Sub mnuFileOpen_Click()
    frmDemo.Caption = "TolvaKit demo - Open chosen"
End Sub

Sub mnuFileSave_Click()
    WScript.Echo "Save chosen from the " & cmdFile.Caption & " menu"
End Sub

' The scroll bar's value, shown by a label: Change for every assignment (arrows, track, code),
' Scroll while the slider is dragged.
Sub sbAmount_Change()
    lblValue.Caption = "Value: " & sbAmount.Value
End Sub

Sub sbAmount_Scroll()
    lblValue.Caption = "Dragging: " & sbAmount.Value
End Sub

Sub lblDetails_Click()
    WScript.Echo "Details of value " & sbAmount.Value
End Sub

' An assignment from code raises Change too, which updates the label.
Sub lblFirst_Click()
    sbAmount.Value = sbAmount.Min
End Sub
