VERSION 5.00
Begin VB.Form frmEntry
   Caption         =   "TolvaKit expense entry"
   ClientHeight    =   2400
   ClientWidth     =   4800
   BackColor       =   &H00FFFFFF&
   BeginProperty Font
      Name            =   "Tahoma"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Begin TolvaKit.TolvaLabel lblDate
      Left            =   240
      Top             =   270
      Width           =   1200
      Height          =   285
      Caption         =   "Date"
      BackColor       =   &H00FFFFFF&
      ForeColor       =   &H00404040&
      BackColorActive =   &H00FFFFFF&
      ForeColorActive =   &H00404040&
      BackColorPushed =   &H00FFFFFF&
      ForeColorPushed =   &H00404040&
   End
   Begin TolvaKit.TolvaInput txtDate
      Left            =   1560
      Top             =   240
      Width           =   2400
      Height          =   315
      TabIndex        =   0
      Text            =   "03/15/2026"
      Style           =   1
   End
   Begin TolvaKit.TolvaLabel lblAmount
      Left            =   240
      Top             =   750
      Width           =   1200
      Height          =   285
      Caption         =   "Amount"
      BackColor       =   &H00FFFFFF&
      ForeColor       =   &H00404040&
      BackColorActive =   &H00FFFFFF&
      ForeColorActive =   &H00404040&
      BackColorPushed =   &H00FFFFFF&
      ForeColorPushed =   &H00404040&
   End
   Begin TolvaKit.TolvaInput txtAmount
      Left            =   1560
      Top             =   720
      Width           =   2400
      Height          =   315
      TabIndex        =   1
      Text            =   "0.00"
      Style           =   2
      FormatString    =   "#,##0.00"
   End
   Begin TolvaKit.TolvaLabel lblCategory
      Left            =   240
      Top             =   1230
      Width           =   1200
      Height          =   285
      Caption         =   "Category"
      BackColor       =   &H00FFFFFF&
      ForeColor       =   &H00404040&
      BackColorActive =   &H00FFFFFF&
      ForeColorActive =   &H00404040&
      BackColorPushed =   &H00FFFFFF&
      ForeColorPushed =   &H00404040&
   End
   Begin TolvaKit.TolvaInput cboCategory
      Left            =   1560
      Top             =   1200
      Width           =   2400
      Height          =   315
      TabIndex        =   2
      Text            =   "Office supplies"
      Style           =   3
      List0           =   "Office supplies"
      Locked          =   -1  'True
      SelectionTracking =   -1  'True
   End
   Begin TolvaKit.TolvaLabel lblNote
      Left            =   240
      Top             =   1710
      Width           =   1200
      Height          =   285
      Caption         =   "Note"
      BackColor       =   &H00FFFFFF&
      ForeColor       =   &H00404040&
      BackColorActive =   &H00FFFFFF&
      ForeColorActive =   &H00404040&
      BackColorPushed =   &H00FFFFFF&
      ForeColorPushed =   &H00404040&
   End
   Begin TolvaKit.TolvaInput txtNote
      Left            =   1560
      Top             =   1680
      Width           =   2400
      Height          =   315
      TabIndex        =   3
      Text            =   ""
      MaxLength       =   40
   End
End
