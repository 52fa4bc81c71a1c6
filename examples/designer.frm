VERSION 5.00
Begin VB.Form frmDesigner
   Caption         =   "Book keeping"
   ClientHeight    =   4320
   ClientWidth     =   5760
   BeginProperty Font
      Name            =   "Tahoma"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Begin TolvaKit.TolvaTabs ttBooks
      Left            =   120
      Top             =   120
      Width           =   5160
      Height          =   420
      TabIndex        =   0
      TabsCount       =   2
      Tabs1           =   "&Ledger"
      Tabs2           =   "&Journal"
      TabCount        =   2
      SelectedItem    =   1
   End
   Begin TolvaKit.TolvaList lstEntries
      Left            =   120
      Top             =   660
      Width           =   4920
      Height          =   2400
      TabIndex        =   1
      BorderStyle     =   1
      ColumnCount     =   2
      ColumnTextCount =   2
      ColumnText1     =   "Date"
      ColumnText2     =   "Description"
      ColumnAlignmentCount=   2
      ColumnAlignment1=   0
      ColumnAlignment2=   0
      ColumnFormatCount=   2
      ColumnFormat1   =   ""
      ColumnFormat2   =   ""
      ColumnWidthCount=   2
      ColumnWidth1    =   1200
      ColumnWidth2    =   2400
   End
   Begin TolvaKit.TolvaScroll sbEntries
      Left            =   5160
      Top             =   660
      Width           =   255
      Height          =   2400
      Max             =   50
   End
   Begin TolvaKit.TolvaLabel lblTotal
      Left            =   120
      Top             =   3240
      Width           =   1800
      Height          =   300
      Caption         =   "Total"
      BackColor       =   &H00F4F4F4&
      ForeColor       =   &H00000000&
      BackColorActive =   &H00F4F4F4&
      BackColorPushed =   &H00F4F4F4&
      ForeColorActive =   &H00000000&
      ForeColorPushed =   &H00000000&
   End
   Begin TolvaKit.TolvaInput txtAmount
      Left            =   2040
      Top             =   3240
      Width           =   1800
      Height          =   315
      TabIndex        =   2
      Text            =   "0.00"
   End
   Begin TolvaKit.TolvaCommand cmdPost
      Left            =   120
      Top             =   3720
      Width           =   1800
      Height          =   450
      TabIndex        =   3
      Caption         =   "&Post"
   End
End
