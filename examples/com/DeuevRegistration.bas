Attribute VB_Name = "DeuevRegistration"
' A VBA or VB6 module that writes a whole DEUEV transfer file through
' TamrelFile26.dll, early bound as payroll programs call it.
' Needs a reference to "Tamrel File 26" (Tools > References; the 32-bit DLL
' for 32-bit Office and VB6, the 64-bit one for 64-bit Office).
' The data objects are those of your data-object library, or class modules
' with the same properties (examples/com/deuev-registration.vbs shows them).
Option Explicit

' Writes the file: VOSZ, DSKO, one DSME per registration, NCSZ; ISO-8859-1
' (VB's ANSI strings on a German Windows), each record ended by LF.
Public Sub WriteDeuevFile(ByVal path As String, ByVal registrations As Collection)
    Dim gen As New TamrelFile26.clsGenMeldung
    Dim dsko As TamrelFile26.DSKOData
    Dim satz As TamrelFile26.DatensatzData
    Dim datum As Variant, stamp As Date, f As Integer, m As Object, records As Long

    On Error GoTo Failed
    stamp = Now
    dsko.strBNRAb = "98765432": dsko.strBNREm = "12345671"
    dsko.strMicroSec = "000001": dsko.strProdID = "TAMREL1": dsko.strModID = "MOD0001"
    dsko.strName1 = "Muster Lohnbüro GmbH": dsko.strStrasse = "Hauptstraße": dsko.strHausNr = "1"
    dsko.strPLZ = "10115": dsko.strOrt = "Berlin"
    dsko.strAnGeschl = "W": dsko.strAnName = "Erika Beispiel": dsko.strAnTel = "030 1234567"
    satz.strBNRAb = "98765432": satz.strVersion = "TAMREL": satz.strMicroseconds = "000001"
    satz.strProdID = "TAMREL1": satz.strModID = "MOD0001"

    f = FreeFile
    Open path For Output As #f
    datum = ""
    Print #f, gen.GenVOSZ("98765432", "12345671", "1", "Muster Lohnbüro GmbH", vmNormal, datum, stamp) & vbLf;
    Print #f, gen.GenDSKO(dsko, stamp) & vbLf;
    For Each m In registrations
        Print #f, gen.GenData(m, satz, vmNormal, stamp) & vbLf;
        records = records + 1
    Next
    ' The count includes the DSKO.
    Print #f, gen.GenNCSZ("98765432", "12345671", "1", CStr(records + 1), vmNormal, stamp) & vbLf;
    Close #f
    Exit Sub

Failed:
    ' Err.Number is the error's number (-2147213200 for an amount, 438 for a
    ' property the data object lacks), Err.Source where it arose; the log
    ' file (%TEMP%\TamrelFile26.log) holds one line per routine on the way.
    Dim number As Long, source As String, description As String
    number = Err.Number: source = Err.Source: description = Err.Description
    If f <> 0 Then Close #f
    Kill path    ' nothing half written stays behind
    Err.Raise number, source, description
End Sub
