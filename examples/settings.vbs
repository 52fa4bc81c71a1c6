' The code of settings.frm. The tab strip holds no pages: each tab's controls lie on its folder
' and the strip's Change shows the group of the new tab and hides the others. Leaving the Limits
' tab is refused while no limit is set.
Option Explicit

Dim shownTab, ledgerNames, ledgerIndex, limit
limit = 0
ledgerNames = Array("Main ledger", "Petty cash", "Suppliers")
ledgerIndex = 0

Sub ShowGroup(tabNumber)
    lblLedger.Visible = (tabNumber = 1)
    lblCurrency.Visible = (tabNumber = 1)
    cmdRename.Visible = (tabNumber = 1)
    lblLimit.Visible = (tabNumber = 2)
    lblLimitHint.Visible = (tabNumber = 2)
    cmdRaise.Visible = (tabNumber = 2)
    lblAdvanced.Visible = (tabNumber = 3)
    cmdReset.Visible = (tabNumber = 3)
    shownTab = tabNumber
End Sub

Function TabName(tabNumber)
    TabName = Replace(ttSettings.Tabs(tabNumber), "&", "")
End Function

' The handler sees the new tab already selected; setting rCancel takes it back.
Sub ttSettings_Change(rCancel)
    If shownTab = 2 And limit = 0 Then
        rCancel = True
        lblStatus.Caption = TabName(ttSettings.SelectedItem) & " refused: set a daily limit first"
        WScript.Echo "Change to " & TabName(ttSettings.SelectedItem) & " refused"
        Exit Sub
    End If
    ShowGroup ttSettings.SelectedItem
    lblStatus.Caption = "Showing " & TabName(shownTab)
    WScript.Echo "Showing " & TabName(shownTab)
End Sub

Sub SetLimit(thousands)
    limit = thousands
    If limit = 0 Then
        lblLimit.Caption = "Daily limit: not set"
    Else
        lblLimit.Caption = "Daily limit: " & limit & " 000 EUR"
    End If
End Sub

Sub cmdRaise_Click()
    SetLimit limit + 5
    lblStatus.Caption = ""
End Sub

Sub cmdRename_Click()
    ledgerIndex = (ledgerIndex + 1) Mod (UBound(ledgerNames) + 1)
    lblLedger.Caption = "Ledger: " & ledgerNames(ledgerIndex)
End Sub

Sub cmdReset_Click()
    SetLimit 0
    lblStatus.Caption = "The daily limit was reset"
End Sub

ShowGroup ttSettings.SelectedItem
