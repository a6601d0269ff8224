' The COM classes from a scripting host: every class created, clsGenDef
' refused, the frame methods giving exactly the records of the command line's
' call protocol, errors reaching the script with number, source and
' description. Argument: the file of expected values (UTF-16, "key<TAB>value"
' a line), which scripts/com-test.sh makes from `tamrel call`.
' Wine's cscript exits 0 even when a script fails: the summary line and the
' final marker are what the caller checks.
Option Explicit
Dim passed, failed, expected
passed = 0
failed = 0

Sub Check(ok, what)
    If ok Then
        passed = passed + 1
    Else
        failed = failed + 1
        WScript.Echo "FAILED: " & what
    End If
End Sub

Sub CheckEqual(actual, wanted, what)
    Check actual = wanted, what & ": got [" & actual & "], expected [" & wanted & "]"
End Sub

Sub LoadExpected(path)
    Dim fso, f, line, tab
    Set expected = CreateObject("Scripting.Dictionary")
    Set fso = CreateObject("Scripting.FileSystemObject")
    Set f = fso.OpenTextFile(path, 1, False, -1)
    Do While Not f.AtEndOfStream
        line = f.ReadLine
        tab = InStr(line, vbTab)
        If tab > 0 Then expected(Left(line, tab - 1)) = Mid(line, tab + 1)
    Loop
    f.Close
End Sub

' A data object without any property.
Class Bare
End Class

LoadExpected WScript.Arguments(0)
Dim stamp, names, n, g, r, d
stamp = CDate("2024-03-01 10:11:12")

' Every creatable class; clsGenDef is public but not creatable.
names = Array("clsGenBeitrNachw", "clsGenBeitrErh", "clsGenMeldung", "clsGenErst", "clsGenZahl", "clsGenBetrieb", _
              "clsProtoEntry", "clsGenArbeitsBesch", "clsGenEntgelt", "clsGenAbfrVers", "clsGenAsyl", _
              "clsGenAbfrStammdatenUV", "clsGenLohnnachweis")
On Error Resume Next
For Each n In names
    Err.Clear
    Set g = CreateObject("TamrelFile26." & n)
    Check Err.Number = 0 And IsObject(g), "create " & n & ": " & Err.Description
Next
Err.Clear
Set g = CreateObject("TamrelFile26.clsGenDef")
CheckEqual Err.Number, 429, "clsGenDef is not creatable"
Err.Clear
On Error GoTo 0

' The frame methods, as the call protocol gives them for the same arguments.
Set g = CreateObject("TamrelFile26.clsGenErst")
d = ""
CheckEqual g.GenVOSZ("98765432", "12345678", "1", expected("firma1"), 0, d, stamp), expected("1"), "clsGenErst.GenVOSZ"
CheckEqual d, "20240301", "strDatum handed back"
' Another date, then the first again: each call takes its own.
d = ""
r = g.GenVOSZ("98765432", "12345678", "1", expected("firma1"), 0, d, CDate("2025-12-31 23:59:58"))
CheckEqual d, "20251231", "a second date"
d = ""
CheckEqual g.GenVOSZ("98765432", "12345678", "1", expected("firma1"), 0, d, stamp), expected("1"), "the first date again"
CheckEqual d, "20240301", "the first date again, handed back"
Set g = CreateObject("TamrelFile26.clsGenMeldung")
CheckEqual g.GenNCSZ("98765432", "12345678", "1", "3", 1, stamp), expected("2"), "clsGenMeldung.GenNCSZ"
Set g = CreateObject("TamrelFile26.clsGenBeitrNachw")
d = ""
CheckEqual g.GenVOSZ("98765432", "12345678", "7", 1, expected("firma3"), d, stamp), expected("3"), _
           "clsGenBeitrNachw.GenVOSZ (procedure fourth)"
Set g = CreateObject("TamrelFile26.clsGenAsyl")
d = ""
CheckEqual g.GenVOSZ("98765432", "12345678", "1", "Firma", 0, d, stamp), expected("4"), "clsGenAsyl.GenVOSZ"
Set g = CreateObject("TamrelFile26.clsGenBeitrErh")
CheckEqual g.GenNCSZ("98765432", "12345678", "1", "12", stamp), expected("5"), "clsGenBeitrErh.GenNCSZ"
' Optional arguments left out: today's date, handed back in strDatum when asked for.
Set g = CreateObject("TamrelFile26.clsGenErst")
CheckEqual Len(g.GenVOSZ("98765432", "12345678", "1", "Firma", 0)), 105, "GenVOSZ without strDatum and datDate"

' clsGenAsyl has no GenDSKO: an unknown member, as for any object.
On Error Resume Next
Set g = CreateObject("TamrelFile26.clsGenAsyl")
Err.Clear
r = g.GenDSKO(d)
CheckEqual Err.Number, 438, "clsGenAsyl.GenDSKO is unknown"

' Errors: the data object's own, and Nothing for an object.
Dim p, bare
Set p = CreateObject("TamrelFile26.clsProtoEntry")
Set bare = New Bare
Err.Clear
r = p.CreateProtoMeld(bare, False)
CheckEqual Err.Number, 438, "a property the object lacks: number"
CheckEqual Err.Source, "objMeldung", "a property the object lacks: source"
CheckEqual Err.Description, expected("lacks"), "a property the object lacks: description"
Err.Clear
r = p.CreateProtoErst(Nothing, True, "x")
CheckEqual Err.Number, 91, "Nothing for the data object: number"
CheckEqual Err.Source, "objErst", "Nothing for the data object: source"
Err.Clear
On Error GoTo 0

' The data objects of TamrelObj26: sub-objects from creation, indexed
' properties, bounds and counts derived where not set, repeating groups,
' Set, errors a script can catch, and a generator reading one.
Dim m, v2, b, item
Set m = CreateObject("TamrelObj26.Meldung")
m.Vorgang.Familienname = "Muster"
CheckEqual m.Vorgang.Familienname, "Muster", "a sub-object exists from creation"
m.Vorgang.Arbeitgeber.Betriebsnummer = "98765432"
CheckEqual m.vorgang.arbeitgeber.betriebsnummer, "98765432", "a sub-object's sub-object, names in any case"
m.KsZeileA(3) = "AB"
CheckEqual m.KsZeileA(3), "AB", "an indexed property keeps its entry"
CheckEqual m.KsZeileA(1), "", "an entry not given reads empty"
CheckEqual m.KsLetzter, 3, "a bound not set follows the list"
m.KsLetzter = 12
CheckEqual m.KsLetzter, 12, "a bound set stays"
m.Laufnummer = "7"
CheckEqual m.Laufnummer + 1, 8, "a number from a text"
m.MitNamensdaten = True
CheckEqual m.MitNamensdaten, True, "a flag"
Set v2 = CreateObject("TamrelObj26.Vorgang")
v2.Familienname = "Anders"
Set m.Vorgang = v2
CheckEqual m.Vorgang.Familienname, "Anders", "Set replaces a sub-object"
On Error Resume Next
Err.Clear
m.Unbekannt = 1
CheckEqual Err.Number, 438, "a property no data object has"
Err.Clear
Set m.Vorgang = CreateObject("TamrelObj26.Empfaenger")
CheckEqual Err.Number, 13, "Set to an object of another kind"
Err.Clear
m.Laufnummer = "sieben"
CheckEqual Err.Number, 13, "a number that is none"
Err.Clear
On Error GoTo 0
Set b = CreateObject("TamrelObj26.ArbeitsBesch")
Set item = b.AddDBSE()
item.STKL = "3"
b.AddDBSE().STKL = "4"
CheckEqual b.AnzahlDBSE, 2, "a group's count follows its items"
CheckEqual b.DBSE(2).STKL, "4", "a group's item by its number"
b.ClearDBSE
CheckEqual b.AnzahlDBSE, 0, "a group cleared"
m.Meldegrund = "10"
r = p.CreateProtoMeld(m, False, "")
Check InStr(r, "Anders") > 0, "the protocol line of a data object: " & r
v2.Familienname = "Zweiter"
r = p.CreateProtoMeld(m, False, "")
Check InStr(r, "Zweiter") > 0, "a sub-object changed after a use, through another reference: " & r

' A data object as a report of the job format: LoadJson and ToJson.
Dim jm
Set jm = CreateObject("TamrelObj26.Meldung")
jm.LoadJson "{""Laufnummer"":5,""Vorgang"":{""Familienname"":""Muster"",""Arbeitgeber"":{""Betriebsnummer"":""98765432""}},""KsZeileA"":[""DE""]}"
CheckEqual jm.Vorgang.Arbeitgeber.Betriebsnummer, "98765432", "LoadJson fills the sub-objects"
Dim tv
Set tv = CreateObject("TamrelObj26.Vorgang")
' Characters of two, three and four UTF-8 bytes (wine's VBScript has no
' ChrW: they come from JSON escapes): seven UTF-16 units, the same again
' after a trip through a property.
tv.LoadJson "{""Titel"":""Dr\u00fc\u20ac\ud83d\ude00x""}"
CheckEqual Len(tv.Titel), 7, "a text of two-, three- and four-byte characters"
Dim tv2
Set tv2 = CreateObject("TamrelObj26.Vorgang")
tv2.Titel = tv.Titel
Check tv2.Titel = tv.Titel, "a text of two-, three- and four-byte characters comes back as it was set"
CheckEqual jm.ToJson(), "{""Laufnummer"":5,""KsZeileA"":[""DE""],""Vorgang"":{""Familienname"":""Muster"",""Arbeitgeber"":{""Betriebsnummer"":""98765432""}}}", "ToJson: what was given, nothing derived"
CheckEqual jm.KsLetzter, 1, "a derived bound reads as derived"
On Error Resume Next
Err.Clear
jm.LoadJson "{""Unbekannt"":1}"
CheckEqual Err.Description, "LoadJson.Unbekannt: unknown property", "LoadJson names what it cannot take"
Err.Clear
On Error GoTo 0
CheckEqual jm.Laufnummer, 5, "a report LoadJson refuses leaves the object as it was"

' A whole file from a script: the structures given as TamrelObj26 objects
' where the methods take them (frames.ndjson's lines 6 to 8).
Dim k, dd, m2, gm, gb
Set k = CreateObject("TamrelObj26.DSKOData")
k.strBNRAb = "98765432"
k.strBNREm = "12345671"
k.strMicroSec = "12"
k.strName1 = "Muster GmbH"
Set gm = CreateObject("TamrelFile26.clsGenMeldung")
CheckEqual gm.GenDSKO(k, stamp), expected("6"), "GenDSKO with a DSKOData object"
Set dd = CreateObject("TamrelObj26.DatensatzData")
dd.strBNRAb = "98765432"
dd.strVersion = "V1"
Set m2 = CreateObject("TamrelObj26.Meldung")
m2.Meldegrund = "10"
m2.Laufnummer = 1
m2.Vorgang.Versicherungsnummer = "65170839J003"
m2.Vorgang.Familienname = "Muster"
m2.Empfaenger.Betriebsnummer = "12345671"
CheckEqual gm.GenData(m2, dd, 0, stamp), expected("7"), "GenData with a DatensatzData object"
Set gb = CreateObject("TamrelFile26.clsGenBeitrNachw")
k.strMicroSec = ""
k.strName1 = expected("firma3")
CheckEqual gb.GenDSKO(k, 1, stamp), expected("8"), "GenDSKO with a number before the date"

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Echo "END OF GENERATOR TESTS"
