' The events of a button the host put on the form as "cmd", handled by the script.
WScript.ConnectObject cmd, "cmd_"

Sub cmd_MouseDown(Button, Shift, X, Y)
    WScript.Echo "MouseDown " & Button & " " & Shift & " " & X & " " & Y
End Sub

Sub cmd_Click()
    WScript.Echo "Click " & cmd.Caption
    cmd.Caption = "Clicked"
End Sub

Sub cmd_MouseUp(Button, Shift, X, Y)
    WScript.Echo "MouseUp " & Button
End Sub

' Typing: lower case becomes upper case, and F1 is swallowed.
Sub cmd_KeyPress(KeyAscii)
    WScript.Echo "KeyPress " & KeyAscii
    If KeyAscii >= 97 And KeyAscii <= 122 Then KeyAscii = KeyAscii - 32
End Sub

Sub cmd_KeyDown(KeyCode, Shift)
    If KeyCode = 112 Then KeyCode = 0
End Sub
