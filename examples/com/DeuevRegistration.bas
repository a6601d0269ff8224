Attribute VB_Name = "DeuevRegistration"
' A VBA or VB6 module that writes a whole DEUEV transfer file through
' TamrelFile26.dll, early bound as payroll programs call it.
' Needs references to "Tamrel File 26" and "Tamrel Data Objects 26"
' (Tools > References; both are in TamrelFile26.dll: the 32-bit DLL for
' 32-bit Office and VB6, the 64-bit one for 64-bit Office). The data
' objects are TamrelObj26's, early bound; any automation object with the
' same properties serves as well.
Option Explicit

' Writes the file: VOSZ, DSKO, one DSME per registration, NCSZ; ISO-8859-1
' (VB's ANSI strings on a German Windows), each record ended by LF.
' Try it: Demo "C:\Temp\deuev.txt"
Public Sub Demo(ByVal path As String)
    Dim registrations As New Collection
    registrations.Add Registration("65170839J003", "P-0001", "Müller", "Jürgen", "19830917", "M")
    WriteDeuevFile path, registrations
End Sub

' The registration of an employee (reason 10: start of employment), with
' its block DBKS (key, date and line 1).
Public Function Registration(ByVal vsnr As String, ByVal aktenzeichen As String, ByVal familienname As String, _
                             ByVal vorname As String, ByVal geburtsdatum As String, _
                             ByVal geschlecht As String) As TamrelObj26.Meldung
    Dim m As New TamrelObj26.Meldung
    m.Laufnummer = 1
    m.Meldegrund = "10"
    m.Meldungsart = 1
    m.Personengruppe = "101"
    m.Beitragsgruppe1 = "1": m.Beitragsgruppe2 = "1": m.Beitragsgruppe3 = "1": m.Beitragsgruppe4 = "1"
    m.Beginn = "20240301"
    m.Statuskennzeichen = "1"
    m.SchluesselNeu1 = "43112": m.SchluesselNeu2 = "1": m.SchluesselNeu3 = "14"
    m.KsKennzeichen = "N"
    m.KsSchluessel = "01"
    m.KsDatum = "20240301"
    m.KsZeileA(1) = "DE"
    m.KsZeileD(1) = "01"
    m.KsLetzter = 12
    With m.Vorgang      ' sub-objects exist from creation
        .Versicherungsnummer = vsnr
        .Aktenzeichen = aktenzeichen
        .Familienname = familienname
        .Vorname = vorname
        .Geburtsdatum = geburtsdatum
        .Geschlecht = geschlecht
        .Arbeitgeber.Betriebsnummer = "98765432"
    End With
    m.Empfaenger.Betriebsnummer = "12345671"
    Set Registration = m
End Function

Public Sub WriteDeuevFile(ByVal path As String, ByVal registrations As Collection)
    Dim gen As New TamrelFile26.clsGenMeldung
    Dim dsko As TamrelFile26.DSKOData
    Dim satz As TamrelFile26.DatensatzData
    Dim datum As Variant, stamp As Date, f As Integer, records As Long
    Dim item As Variant, m As TamrelObj26.Meldung

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
    For Each item In registrations
        Set m = item
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
