// The events of a button the host put on the form as "cmd", handled by JScript functions.
WScript.ConnectObject(cmd, "cmd_");

function cmd_MouseDown(button, shift, x, y) {
    WScript.Echo("MouseDown " + button + " " + shift + " " + x + " " + y);
}

function cmd_Click() {
    WScript.Echo("Click " + cmd.Caption);
    cmd.Caption = "Clicked";
}

function cmd_KeyPress(keyAscii) {
    WScript.Echo("KeyPress " + keyAscii);
}
