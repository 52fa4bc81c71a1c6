VERSION 5.00
Begin VB.Form frmDemo
   Caption         =   "TolvaKit demo"
   ClientHeight    =   3390
   ClientWidth     =   5640
   BeginProperty Font
      Name            =   "Tahoma"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Begin TolvaKit.TolvaCommand cmdOK
      Left            =   240
      Top             =   240
      Width           =   2175
      Height          =   450
      TabIndex        =   0
      Default         =   -1  'True
      Caption         =   "&OK"
      Alignment       =   1
   End
   Begin TolvaKit.TolvaCommand cmdFile
      Left            =   2640
      Top             =   240
      Width           =   2175
      Height          =   450
      TabIndex        =   1
      Caption         =   "&File"
      Style           =   1
      MenuName        =   "mnuFile"
   End
   Begin TolvaKit.TolvaCommand cmdReport
      Left            =   240
      Top             =   900
      Width           =   2175
      Height          =   450
      TabIndex        =   2
      Caption         =   "Print &report"
      BackColor       =   &H00F0E0D0&
      BackColorActive =   &H00FFF0E0&
      BackColorPushed =   &H00D0C0B0&
   End
   Begin TolvaKit.TolvaCommand cmdSaveClose
      Left            =   2640
      Top             =   900
      Width           =   2175
      Height          =   450
      TabIndex        =   3
      Caption         =   "Save && &Close"
   End
   Begin TolvaKit.TolvaCommand cmdDisabled
      Left            =   240
      Top             =   1560
      Width           =   2175
      Height          =   450
      TabIndex        =   4
      Caption         =   "&Disabled"
      Enabled         =   0   'False
   End
   Begin TolvaKit.TolvaCommand cmdBold
      Left            =   2640
      Top             =   1560
      Width           =   2175
      Height          =   450
      TabIndex        =   5
      Caption         =   "&Bold, centred"
      Alignment       =   1
      BeginProperty Font
         Name            =   "Tahoma"
         Size            =   9.75
         Charset         =   0
         Weight          =   700
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
   End
   Begin TolvaKit.TolvaLabel lblDetails
      Left            =   240
      Top             =   2280
      Width           =   2175
      Height          =   300
      Caption         =   "Show &details"
      BackColor       =   &H00FFFFFF&
      ForeColor       =   &H00800000&
      ForeColorActive =   &H00FF0000&
      ForeColorPushed =   &H000000C0&
      BackColorActive =   &H00FFFFFF&
      BackColorPushed =   &H00F0F0F0&
      ArrowIcon       =   5
      ArrowPosition   =   2
      BeginProperty Font
         Name            =   "Tahoma"
         Size            =   8.25
         Charset         =   0
         Weight          =   400
         Underline       =   -1  'True
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
   End
   Begin TolvaKit.TolvaLabel lblFirst
      Left            =   2640
      Top             =   2280
      Width           =   2175
      Height          =   300
      Caption         =   "Back to the &first"
      BackColor       =   &H00FFFFFF&
      ForeColor       =   &H00800000&
      ForeColorActive =   &H00FF0000&
      ForeColorPushed =   &H000000C0&
      BackColorActive =   &H00FFFFFF&
      BackColorPushed =   &H00F0F0F0&
      ArrowIcon       =   0
      ArrowPosition   =   1
      Kerning         =   -1  'True
   End
   Begin TolvaKit.TolvaLabel lblMore
      Left            =   240
      Top             =   2760
      Width           =   2175
      Height          =   330
      Caption         =   "More"
      BorderStyle     =   1
      ArrowIcon       =   3
      ArrowPosition   =   3
      MenuName        =   "mnuFile"
   End
   Begin TolvaKit.TolvaLabel lblValue
      Left            =   2640
      Top             =   2760
      Width           =   2175
      Height          =   330
      Caption         =   "Value: 1"
      BackColor       =   &H00FFFFFF&
      ForeColor       =   &H00000000&
      BorderStyle     =   1
      Alignment       =   1
   End
   Begin TolvaKit.TolvaScroll sbAmount
      Left            =   5100
      Top             =   240
      Width           =   255
      Height          =   2850
      Max             =   200
      LargeChange     =   20
      SmallChange     =   5
   End
   Begin VB.Menu mnuFile
      Caption         =   "&File"
      Visible         =   0   'False
      Begin VB.Menu mnuFileOpen
         Caption         =   "&Open..."
      End
      Begin VB.Menu mnuFileSave
         Caption         =   "&Save"
      End
      Begin VB.Menu mnuFileSep
         Caption         =   "-"
      End
      Begin VB.Menu mnuFileExit
         Caption         =   "E&xit"
      End
   End
End
Attribute VB_Name = "frmDemo"
