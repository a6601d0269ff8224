' A scripting host's program with TamrelFile26.dll: a whole DEUEV file
' (VOSZ, DSKO, the registration's DSME, NCSZ) and the registration's
' protocol line, with the data objects of TamrelObj26 from the same DLL.
' Run with: cscript //nologo deuev-registration.vbs (after regsvr32
' TamrelFile26.dll; docs/com.md).
'
' TamrelObj26.DSKOData and TamrelObj26.DatensatzData stand in for the
' structures a script cannot pass; after GenData the DatensatzData object
' holds what the method wrote into the structure.
Option Explicit

Dim stamp, datum, gen, proto, m, kom, satz, line
stamp = CDate("2024-03-01 10:11:12")

' The registration of an employee (reason 10: start of employment).
Set m = CreateObject("TamrelObj26.Meldung")
m.Laufnummer = 1
m.Meldegrund = "10"
m.Meldungsart = 1
m.Personengruppe = "101"
m.Beitragsgruppe1 = "1"
m.Beitragsgruppe2 = "1"
m.Beitragsgruppe3 = "1"
m.Beitragsgruppe4 = "1"
m.Beginn = "20240301"
m.Statuskennzeichen = "1"
m.SchluesselNeu1 = "43112"
m.SchluesselNeu2 = "1"
m.SchluesselNeu3 = "14"
m.KsKennzeichen = "N"
' The block DBKS of the registration: its key, date and lines 1 to 12.
m.KsSchluessel = "01"
m.KsDatum = "20240301"
m.KsZeileA(1) = "DE"
m.KsZeileD(1) = "01"
m.KsLetzter = 12
m.Vorgang.Versicherungsnummer = "65170839J003"
m.Vorgang.Aktenzeichen = "P-0001"
m.Vorgang.Familienname = "Mueller"
m.Vorgang.Vorname = "Juergen"
m.Vorgang.Geburtsdatum = "19830917"
m.Vorgang.Geschlecht = "M"
m.Vorgang.Arbeitgeber.Betriebsnummer = "98765432"
m.Empfaenger.Betriebsnummer = "12345671"

' The communication record's sender and the records' identification.
Set kom = CreateObject("TamrelObj26.DSKOData")
kom.strBNRAb = "98765432"
kom.strBNREm = "12345671"
kom.strName1 = "Muster Lohnbuero GmbH"
Set satz = CreateObject("TamrelObj26.DatensatzData")
satz.strBNRAb = "98765432"
satz.strVersion = "BEISPIEL"

Set gen = CreateObject("TamrelFile26.clsGenMeldung")
datum = ""
WScript.Echo gen.GenVOSZ("98765432", "12345671", "1", "Muster Lohnbuero GmbH", 0, datum, stamp)
WScript.Echo gen.GenDSKO(kom, stamp)
WScript.Echo gen.GenData(m, satz, 0, stamp)
WScript.Echo gen.GenNCSZ("98765432", "12345671", "1", "3", 0, stamp)

Set proto = CreateObject("TamrelFile26.clsProtoEntry")
WScript.Echo proto.CreateProtoMeld(m, False)

' Errors arrive as automation errors: number, source and description.
On Error Resume Next
line = proto.CreateProtoMeld(Nothing, False)
If Err.Number <> 0 Then WScript.Echo "error " & Err.Number & " (" & Err.Source & "): " & Err.Description
On Error GoTo 0
