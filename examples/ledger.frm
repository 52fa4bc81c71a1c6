VERSION 5.00
Begin VB.Form frmLedger
   Caption         =   "TolvaKit ledger"
   ClientHeight    =   5400
   ClientWidth     =   8040
   BeginProperty Font
      Name            =   "Tahoma"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Begin TolvaKit.TolvaList lstLedger
      Left            =   120
      Top             =   120
      Width           =   7800
      Height          =   4200
      TabIndex        =   0
      BorderStyle     =   1
      ColumnCount     =   4
      ColumnAlignmentCount=   4
      ColumnAlignment1=   0
      ColumnAlignment2=   0
      ColumnAlignment3=   1
      ColumnAlignment4=   1
      ColumnFormatCount=   4
      ColumnFormat1   =   "dd/mm/yyyy"
      ColumnFormat2   =   ""
      ColumnFormat3   =   "#,##0.00"
      ColumnFormat4   =   "#,##0.00"
      ColumnTextCount =   4
      ColumnText1     =   "Date"
      ColumnText2     =   "Description"
      ColumnText3     =   "Amount"
      ColumnText4     =   "Balance"
      ColumnWidthCount=   4
      ColumnWidth1    =   1200
      ColumnWidth2    =   3000
      ColumnWidth3    =   1500
      ColumnWidth4    =   1700
      GridStyle       =   2
      SelectionTracking=   -1  'True
   End
   Begin TolvaKit.TolvaCommand cmdAdd
      Left            =   120
      Top             =   4440
      Width           =   1695
      Height          =   450
      TabIndex        =   1
      Caption         =   "&Add entry"
   End
   Begin TolvaKit.TolvaCommand cmdRemove
      Left            =   1920
      Top             =   4440
      Width           =   1695
      Height          =   450
      TabIndex        =   2
      Caption         =   "&Remove entry"
   End
   Begin TolvaKit.TolvaLabel lblSelected
      Left            =   3720
      Top             =   4440
      Width           =   4200
      Height          =   450
      BackColor       =   &H00F7F7EF&
      ForeColor       =   &H00000000&
      Caption         =   "No entry selected"
   End
   Begin TolvaKit.TolvaLabel lblCount
      Left            =   120
      Top             =   5000
      Width           =   7800
      Height          =   300
      BackColor       =   &H8000000F&
      ForeColor       =   &H00404040&
      Caption         =   ""
   End
End
