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

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Echo "END OF GENERATOR TESTS"
