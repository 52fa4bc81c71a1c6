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
