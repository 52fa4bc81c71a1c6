' The code of ledger.frm: a running account of 10,000 entries in a TolvaList in the ledger
' style. The list is filled with AutoRefresh off and drawn once at the end. Each row keeps its
' amount in cents as RowData, from which the balances are worked out again after a removal.
Option Explicit

Const Entries = 10000
Const Opening = 2500

Dim seed, balance, lastDay
seed = 12345
balance = Opening
lastDay = DateSerial(2024, 1, 1)

' A repeatable series of amounts between -400.00 and 599.99 (a multiplicative generator).
Function NextAmount()
    seed = seed * 16807
    seed = seed - Int(seed / 2147483647) * 2147483647
    NextAmount = (seed - Int(seed / 100000) * 100000) / 100 - 400
End Function

Function Description(amount)
    Dim expenses
    expenses = Array("Office supplies", "Rent", "Bank charges", "Travel", "Phone", "Postage")
    If amount >= 0 Then
        If Int(seed / 7) Mod 2 = 0 Then Description = "Customer payment" Else Description = "Consulting fee"
    Else
        Description = expenses(Int(seed / 13) Mod 6)
    End If
End Function

Function Money(value)
    Money = FormatNumber(value, 2)
End Function

' Writes an entry at row r: its date, text, amount and the balance it leaves.
Sub WriteEntry(r, day, amount)
    balance = balance + amount
    lstLedger.RowText(r, 1) = FormatDateTime(day, 2)
    lstLedger.RowText(r, 2) = Description(amount)
    lstLedger.RowText(r, 3) = Money(amount)
    lstLedger.RowText(r, 4) = Money(balance)
    lstLedger.RowData(r) = Round(amount * 100)
End Sub

' The balances from row r down, again from the amounts.
Sub Rebalance(r)
    Dim i, running
    running = Opening
    For i = 1 To r - 1
        running = running + lstLedger.RowData(i) / 100
    Next
    For i = r To lstLedger.RowCount
        running = running + lstLedger.RowData(i) / 100
        lstLedger.RowText(i, 4) = Money(running)
    Next
    balance = running
End Sub

Sub ShowCount()
    lblCount.Caption = lstLedger.RowCount & " entries, closing balance " & Money(balance)
End Sub

Sub Fill()
    Dim r
    lstLedger.AutoRefresh = False
    For r = 1 To Entries
        lstLedger.AddRow
        WriteEntry lstLedger.NewIndex, lastDay, NextAmount()
        If r Mod 3 = 0 Then lastDay = lastDay + 1
    Next
    lstLedger.AutoRefresh = True
    ShowCount
End Sub

Sub lstLedger_SelectionChanged()
    Dim r
    r = lstLedger.ListIndex
    If r < 1 Then
        lblSelected.Caption = "No entry selected"
    Else
        lblSelected.Caption = "Entry " & r & ": " & lstLedger.RowText(r, 2) & "  " & lstLedger.RowText(r, 3)
    End If
End Sub

Sub cmdAdd_Click()
    lastDay = lastDay + 1
    lstLedger.AddRow
    WriteEntry lstLedger.NewIndex, lastDay, NextAmount()
    lstLedger.ListIndex = lstLedger.NewIndex
    ShowCount
End Sub

Sub cmdRemove_Click()
    Dim r
    r = lstLedger.ListIndex
    If r < 1 Then Exit Sub
    lstLedger.AutoRefresh = False
    lstLedger.RemoveRow r
    Rebalance r
    lstLedger.AutoRefresh = True
    lstLedger_SelectionChanged
    ShowCount
End Sub

Fill
