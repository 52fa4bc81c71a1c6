VERSION 5.00
Begin VB.Form frmMain
   Caption         =   "Main"
   BeginProperty Font
      Name            =   "MS Sans Serif"
      Size            =   8.25
      Weight          =   400
   EndProperty
   Begin TolvaKit.TolvaCommand cmdOK
      Caption         =   "&OK"
      BackColor       =   &H8000000F&
      Enabled         =   -1  'True
   End
   Begin VB.Menu mnuFile
      Caption         =   "File"
   End
End
Attribute VB_Name = "frmMain"
