' A scripting host's program with TamrelFile26.dll: the frame records of a
' DEUEV file and the protocol line of one registration, whose data object is
' a VBScript class. Run with: cscript //nologo deuev-registration.vbs
' (after regsvr32 TamrelFile26.dll; docs/com.md).
'
' The server reads every property of a data object, so a class of one's own
' declares them all (one a line: wine's VBScript takes no lists); a property
' it lacks is error 438. Scripting hosts cannot pass the structures DSKOData
' and DatensatzData: GenDSKO and most GenData methods are for early-bound
' hosts (examples/com/DeuevRegistration.bas).
Option Explicit

Class MeldungDaten
    Public Laufnummer
    Public Meldegrund
    Public MitNamensdaten
    Public Personengruppe
    Public Zusatzmerkmal
    Public Ersatzaktenzeichen
    Public Zeitpunkt
    Public Meldungsart
    Public Storno
    Public Meldekennzeichen
    Public Beginn
    Public Ende
    Public Sonderkennzeichen
    Public Beitragsgruppe1
    Public Beitragsgruppe2
    Public Beitragsgruppe3
    Public Beitragsgruppe4
    Public SchluesselAlt1
    Public SchluesselAlt2
    Public SchluesselAlt3
    Public SchluesselAlt4
    Public SchluesselAlt5
    Public SchluesselNeu1
    Public SchluesselNeu2
    Public SchluesselNeu3
    Public KsKennzeichen
    Public Statuskennzeichen
    Public Entgelt
    Public KvGrund
    Public KvBetrag1
    Public KvBetrag2
    Public KvBetrag3
    Public KvBetrag4
    Public KsMerkmal
    Public KsAngabe1
    Public KsAngabe2
    Public KsAngabe3
    Public KsAngabe4
    Public KsSchluessel
    Public KsDatum
    Public KsLetzter
    Public KsErster
    Public UvLetzter
    Public UvErster
    Public Vorgang
    Public Empfaenger
    Private entries

    Private Sub Class_Initialize()
        Set entries = CreateObject("Scripting.Dictionary")
        KsErster = 1
        KsLetzter = 0
        UvErster = 1
        UvLetzter = 0
        Set Vorgang = New VorgangDaten
        Set Empfaenger = New EmpfaengerDaten
    End Sub

    ' The indexed properties (KsZeileA(1) ...) are read from KsErster to
    ' KsLetzter and from UvErster to UvLetzter.
    Public Sub SetEntry(name, i, value)
        entries(name & "(" & i & ")") = value
    End Sub
    Private Function Entry(name, i)
        If entries.Exists(name & "(" & i & ")") Then Entry = entries(name & "(" & i & ")")
    End Function
    Public Property Get KsZeileA(i)
        KsZeileA = Entry("KsZeileA", i)
    End Property
    Public Property Get KsZeileB(i)
        KsZeileB = Entry("KsZeileB", i)
    End Property
    Public Property Get KsZeileC(i)
        KsZeileC = Entry("KsZeileC", i)
    End Property
    Public Property Get KsZeileD(i)
        KsZeileD = Entry("KsZeileD", i)
    End Property
    Public Property Get UvAngabe1(i)
        UvAngabe1 = Entry("UvAngabe1", i)
    End Property
    Public Property Get UvAngabe2(i)
        UvAngabe2 = Entry("UvAngabe2", i)
    End Property
    Public Property Get UvAngabe3(i)
        UvAngabe3 = Entry("UvAngabe3", i)
    End Property
    Public Property Get UvAngabe4(i)
        UvAngabe4 = Entry("UvAngabe4", i)
    End Property
    Public Property Get UvAngabe5(i)
        UvAngabe5 = Entry("UvAngabe5", i)
    End Property
    Public Property Get UvAngabe6(i)
        UvAngabe6 = Entry("UvAngabe6", i)
    End Property
    Public Property Get UvEntfaellt(i)
        UvEntfaellt = Entry("UvEntfaellt", i)
    End Property
End Class

Class VorgangDaten
    Public Versicherungsnummer
    Public Kennung14
    Public Bezugskennung
    Public Aktenzeichen
    Public Familienname
    Public Vorsatzwort
    Public Namenszusatz
    Public Vorname
    Public Titel
    Public Strasse
    Public Hausnummer
    Public Adresszusatz
    Public Land
    Public PLZ
    Public Ort
    Public Laenderschluessel
    Public Geburtsname
    Public GeburtsVorsatzwort
    Public GeburtsNamenszusatz
    Public Geburtsort
    Public Geburtsdatum
    Public Geschlecht
    Public EuAngabe1
    Public EuAngabe2
    Public Arbeitgeber
    Private Sub Class_Initialize()
        Set Arbeitgeber = New ArbeitgeberDaten
    End Sub
End Class

Class ArbeitgeberDaten
    Public Betriebsnummer
    Public Arbeitgeberangabe
    Public Name1
    Public Name2
    Public Name3
    Public Strasse
    Public Hausnummer
    Public Adresszusatz
    Public Land
    Public PLZ
    Public Ort
    Public AdressTeil1
    Public AdressTeil2
    Public Kennzeichen
    Public Kontonummer
    Public Bankleitzahl
End Class

Class EmpfaengerDaten
    Public Betriebsnummer
End Class

Dim stamp, datum, gen, proto, m, line
stamp = CDate("2024-03-01 10:11:12")

' The registration of an employee (reason 10: start of employment).
Set m = New MeldungDaten
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
m.Vorgang.Versicherungsnummer = "65170839J003"
m.Vorgang.Aktenzeichen = "P-0001"
m.Vorgang.Familienname = "Mueller"
m.Vorgang.Vorname = "Juergen"
m.Vorgang.Geburtsdatum = "19830917"
m.Vorgang.Geschlecht = "M"
m.Vorgang.Arbeitgeber.Betriebsnummer = "98765432"
m.Empfaenger.Betriebsnummer = "12345671"

Set gen = CreateObject("TamrelFile26.clsGenMeldung")
datum = ""
WScript.Echo gen.GenVOSZ("98765432", "12345671", "1", "Muster Lohnbuero GmbH", 0, datum, stamp)
WScript.Echo "created on " & datum

Set proto = CreateObject("TamrelFile26.clsProtoEntry")
WScript.Echo proto.CreateProtoMeld(m, False)

WScript.Echo gen.GenNCSZ("98765432", "12345671", "1", "3", 0, stamp)

' Errors arrive as automation errors: number, source and description.
On Error Resume Next
line = proto.CreateProtoMeld(Nothing, False)
If Err.Number <> 0 Then WScript.Echo "error " & Err.Number & " (" & Err.Source & "): " & Err.Description
On Error GoTo 0
