#pragma once
#include <string_view>

// Forms of the form host that several window tests load.
namespace tolva::win32::test {

// Three buttons of 100 x 30 pixels: cmdOK "&OK" at (10, 20), cmdFirst "First" first in tab
// order, cmdMenu the default button and a menu button for mnuFile (Open and Exit).
inline constexpr std::string_view ButtonsForm = R"(VERSION 5.00
Begin VB.Form frmTest
   Caption         =   "Test form"
   ClientWidth     =   6000
   ClientHeight    =   3000
   Begin TolvaKit.TolvaCommand cmdOK
      Left            =   150
      Top             =   300
      Width           =   1500
      Height          =   450
      TabIndex        =   1
      Caption         =   "&OK"
   End
   Begin TolvaKit.TolvaCommand cmdFirst
      Left            =   1800
      Top             =   300
      Width           =   1500
      Height          =   450
      TabIndex        =   0
      Caption         =   "First"
   End
   Begin TolvaKit.TolvaCommand cmdMenu
      Left            =   3450
      Top             =   300
      Width           =   1500
      Height          =   450
      TabIndex        =   2
      Default         =   -1  'True
      Caption         =   "&File"
      Style           =   1
      MenuName        =   "mnuFile"
   End
   Begin VB.Menu mnuFile
      Caption         =   "&File"
      Visible         =   0   'False
      Begin VB.Menu mnuFileOpen
         Caption         =   "&Open"
      End
      Begin VB.Menu mnuFileExit
         Caption         =   "E&xit"
      End
   End
End
)";

// One control of each kind, 9000 x 4500 twips: cmdSave first in tab order, a link label, a
// calendar input txtDate, a scroll bar, two tabs, an empty list; and two more inputs with
// drop-downs down the right, the calculator txtAmount and the list field cboItem.
inline constexpr std::string_view EveryControlForm = R"(Begin VB.Form frmAccess
   ClientWidth     =   9000
   ClientHeight    =   4500
   Begin TolvaKit.TolvaCommand cmdSave
      Left            =   150
      Top             =   150
      Width           =   1500
      Height          =   450
      TabIndex        =   0
      Caption         =   "&Save"
   End
   Begin TolvaKit.TolvaLabel lblMore
      Left            =   1800
      Top             =   150
      Width           =   1500
      Height          =   300
      Caption         =   "More"
      ArrowPosition   =   2
   End
   Begin TolvaKit.TolvaInput txtDate
      Left            =   3450
      Top             =   150
      Width           =   2400
      Height          =   315
      TabIndex        =   1
      Text            =   "03/15/2026"
      Style           =   1
   End
   Begin TolvaKit.TolvaScroll vsbPage
      Left            =   6000
      Top             =   150
      Width           =   255
      Height          =   3000
      Value           =   7
   End
   Begin TolvaKit.TolvaTabs tabMain
      Left            =   150
      Top             =   750
      Width           =   5000
      Height          =   900
      TabIndex        =   2
      TabsCount       =   2
      Tabs1           =   "&General"
      Tabs2           =   "&Limits"
      TabCount        =   2
      SelectedItem    =   1
   End
   Begin TolvaKit.TolvaList lstPeople
      Left            =   150
      Top             =   1800
      Width           =   4500
      Height          =   2400
      TabIndex        =   3
   End
   Begin TolvaKit.TolvaInput txtAmount
      Left            =   6450
      Top             =   150
      Width           =   2400
      Height          =   315
      TabIndex        =   4
      Text            =   "0"
      Style           =   2
      FormatString    =   "0.00"
   End
   Begin TolvaKit.TolvaInput cboItem
      Left            =   6450
      Top             =   750
      Width           =   2400
      Height          =   315
      TabIndex        =   5
      Text            =   ""
      Style           =   3
   End
End
)";

} // namespace tolva::win32::test
