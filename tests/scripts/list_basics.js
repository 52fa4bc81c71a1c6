// A TolvaList created from JScript: optional arguments left out, numbers as doubles, errors as
// exceptions. JScript cannot assign indexed properties, so the cells stay empty here.
var failures = 0;

function check(actual, expected, what) {
    if (actual !== expected) {
        WScript.Echo("FAIL " + what + ": got " + actual + ", expected " + expected);
        failures++;
    }
}

function fails(action) {
    try {
        action();
    } catch (e) {
        return true;
    }
    return false;
}

var lst = new ActiveXObject("TolvaKit.TolvaList");
lst.AddColumn("Description");
lst.AddColumn("Balance", 1);
check(lst.ColumnWidth(2), 1200, "default width");
check(lst.ColumnAlignment(2), 1, "alignment");
for (var r = 1; r <= 20; r++)
    lst.AddRow();
check(lst.RowCount, 20, "rows");
check(lst.NewIndex, 20, "NewIndex of an appended row");
check(lst.RowText(2.0, 1), "", "a double index");
lst.AddRow(1);
check(lst.NewIndex, 1, "inserted at the top");
lst.ListIndex = 0;
check(lst.ListIndex, 1, "ListIndex 0 selects the first row");
lst.TopIndex = 5;
check(lst.TopIndex, 5, "TopIndex");
check(fails(function () { return lst.RowText(0, 1); }), true, "row 0 is refused");
check(fails(function () { return lst.RowText(lst, 1); }), true, "an object index is refused");
check(fails(function () { return lst.ColumnWidth(1e9); }), true, "an index past 16 bits is refused");
lst.Clear();
check(lst.RowCount, 0, "cleared");
check(lst.ListIndex, 0, "no selection after Clear");
check(lst.TopIndex, 5, "Clear keeps TopIndex");

if (failures > 0)
    WScript.Quit(1);
WScript.Echo("list_basics.js passed");
