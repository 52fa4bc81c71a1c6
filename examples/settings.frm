VERSION 5.00
Begin VB.Form frmSettings
   Caption         =   "Ledger settings"
   ClientHeight    =   3720
   ClientWidth     =   6240
   BackColor       =   &H00E0E0E0&
   BeginProperty Font
      Name            =   "Tahoma"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Begin TolvaKit.TolvaLabel lblLedger
      Left            =   360
      Top             =   600
      Width           =   4200
      Height          =   300
      Caption         =   "Ledger: Main ledger"
      BackColor       =   &H00F4F4F4&
      ForeColor       =   &H00000000&
      BackColorActive =   &H00F4F4F4&
      BackColorPushed =   &H00F4F4F4&
      ForeColorActive =   &H00000000&
      ForeColorPushed =   &H00000000&
   End
   Begin TolvaKit.TolvaLabel lblCurrency
      Left            =   360
      Top             =   960
      Width           =   4200
      Height          =   300
      Caption         =   "Currency: EUR"
      BackColor       =   &H00F4F4F4&
      ForeColor       =   &H00000000&
      BackColorActive =   &H00F4F4F4&
      BackColorPushed =   &H00F4F4F4&
      ForeColorActive =   &H00000000&
      ForeColorPushed =   &H00000000&
   End
   Begin TolvaKit.TolvaCommand cmdRename
      Left            =   360
      Top             =   1440
      Width           =   2175
      Height          =   450
      TabIndex        =   1
      Caption         =   "Re&name ledger"
   End
   Begin TolvaKit.TolvaLabel lblLimit
      Left            =   360
      Top             =   600
      Width           =   4200
      Height          =   300
      Caption         =   "Daily limit: not set"
      BackColor       =   &H00F4F4F4&
      ForeColor       =   &H00000000&
      BackColorActive =   &H00F4F4F4&
      BackColorPushed =   &H00F4F4F4&
      ForeColorActive =   &H00000000&
      ForeColorPushed =   &H00000000&
   End
   Begin TolvaKit.TolvaLabel lblLimitHint
      Left            =   360
      Top             =   960
      Width           =   4800
      Height          =   300
      Caption         =   "Set a limit before leaving this tab."
      BackColor       =   &H00F4F4F4&
      ForeColor       =   &H00606060&
      BackColorActive =   &H00F4F4F4&
      BackColorPushed =   &H00F4F4F4&
      ForeColorActive =   &H00606060&
      ForeColorPushed =   &H00606060&
   End
   Begin TolvaKit.TolvaCommand cmdRaise
      Left            =   360
      Top             =   1440
      Width           =   2175
      Height          =   450
      TabIndex        =   2
      Caption         =   "Raise by &5 000"
   End
   Begin TolvaKit.TolvaLabel lblAdvanced
      Left            =   360
      Top             =   600
      Width           =   4800
      Height          =   300
      Caption         =   "Resetting sets the daily limit back to none."
      BackColor       =   &H00F4F4F4&
      ForeColor       =   &H00000000&
      BackColorActive =   &H00F4F4F4&
      BackColorPushed =   &H00F4F4F4&
      ForeColorActive =   &H00000000&
      ForeColorPushed =   &H00000000&
   End
   Begin TolvaKit.TolvaCommand cmdReset
      Left            =   360
      Top             =   1080
      Width           =   2175
      Height          =   450
      TabIndex        =   3
      Caption         =   "R&eset limit"
   End
   Begin TolvaKit.TolvaLabel lblStatus
      Left            =   120
      Top             =   3240
      Width           =   6000
      Height          =   300
      Caption         =   ""
      BackColor       =   &H00E0E0E0&
      ForeColor       =   &H00800000&
      BackColorActive =   &H00E0E0E0&
      BackColorPushed =   &H00E0E0E0&
      ForeColorActive =   &H00800000&
      ForeColorPushed =   &H00800000&
   End
   Begin TolvaKit.TolvaTabs ttSettings
      Left            =   120
      Top             =   120
      Width           =   6000
      Height          =   3000
      TabIndex        =   0
      BackColor       =   &H00F4F4F4&
      TabsCount       =   3
      Tabs1           =   "&General"
      Tabs2           =   "&Limits"
      Tabs3           =   "&Advanced"
      TabCount        =   3
      SelectedItem    =   1
      BackColorBehind =   &H00E0E0E0&
   End
End
Attribute VB_Name = "frmSettings"
