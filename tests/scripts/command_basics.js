// A TolvaCommand created from JScript.
var failures = 0;

function check(actual, expected, what) {
    if (actual !== expected) {
        WScript.Echo("FAIL " + what + ": got " + actual + ", expected " + expected);
        failures++;
    }
}

var cmd = new ActiveXObject("TolvaKit.TolvaCommand");
check(cmd.Caption, "TolvaCommand1", "caption of a new button");
cmd.Caption = "OK";
check(cmd.Caption, "OK", "caption");

// JScript writes system colours as large positive numbers.
cmd.BackColor = 0x8000000F;
check(cmd.BackColor, -2147483633, "system back colour");
cmd.ForeColor = 0xFF;
check(cmd.ForeColor, 255, "fore colour");

cmd.Style = 1;
check(cmd.Style, 1, "style");
cmd.Alignment = "1";
check(cmd.Alignment, 1, "alignment from text");
cmd.Enabled = false;
check(cmd.Enabled, false, "enabled");

cmd.Font.Bold = true;
check(cmd.Font.Bold, true, "bold through the font object");
cmd.Refresh();

// A value that is no number is refused with an exception (its number is the engine's choice).
var caught = false;
try {
    cmd.Style = "menu";
} catch (e) {
    caught = true;
}
check(caught, true, "refused value");
check(cmd.Style, 1, "style after a refused value");

if (failures > 0)
    WScript.Quit(1);
WScript.Echo("command_basics.js passed");
