' The cost of filling a data object from VBScript, in three parts: creating
' a TamrelObj26.Meldung (CreateObject), filling it with the registration of
' examples/com/deuev-registration.vbs (32 properties of the object, its
' sub-objects and lists), and GenData with the filled object; N times each.
'     cscript //nologo fill_cost.vbs N
Option Explicit

Dim n, i, t0, gen, satz, m, r, stamp
n = CLng(WScript.Arguments(0))

Sub Report(what, seconds)
    WScript.Echo what & ": " & FormatNumber(1000000 * seconds / n, 1) & " us each (" & n & " in " & _
                 FormatNumber(seconds, 3) & " s)"
End Sub

Sub Fill(m)
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
    m.Vorgang.Geburtsort = "Koeln"
    m.Vorgang.Strasse = "Gartenweg"
    m.Vorgang.Hausnummer = "5"
    m.Vorgang.PLZ = "50667"
    m.Vorgang.Ort = "Koeln"
    m.Vorgang.Arbeitgeber.Betriebsnummer = "98765432"
    m.Empfaenger.Betriebsnummer = "12345671"
End Sub

t0 = Timer
For i = 1 To n
    Set m = CreateObject("TamrelObj26.Meldung")
Next
Report "CreateObject(""TamrelObj26.Meldung"")", Timer - t0

t0 = Timer
For i = 1 To n
    Fill m
Next
Report "filling it (32 properties)", Timer - t0

Set gen = CreateObject("TamrelFile26.clsGenMeldung")
Set satz = CreateObject("TamrelObj26.DatensatzData")
satz.strBNRAb = "98765432"
satz.strVersion = "BEISPIEL"
stamp = CDate("2024-03-01 10:11:12")
t0 = Timer
For i = 1 To n
    r = gen.GenData(m, satz, 0, stamp)
Next
Report "GenData with it", Timer - t0
