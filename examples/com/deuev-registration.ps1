# PowerShell with TamrelFile26.dll: a whole DEUEV file (VOSZ, DSKO, the
# registration's DSME, NCSZ) and its protocol line, with the data objects
# of TamrelObj26 from the same DLL, and an error caught. 64-bit PowerShell
# loads the x86_64 DLL; the i686 one needs the 32-bit PowerShell
# (%SystemRoot%\SysWOW64\WindowsPowerShell\v1.0\powershell.exe).
# TamrelObj26.DSKOData and TamrelObj26.DatensatzData stand in for the
# structures PowerShell cannot pass.
$ErrorActionPreference = 'Stop'
$stamp = Get-Date '2024-03-01 10:11:12'

# The registration of an employee (reason 10: start of employment).
$m = New-Object -ComObject TamrelObj26.Meldung
$m.Laufnummer = 1
$m.Meldegrund = '10'
$m.Meldungsart = 1
$m.Personengruppe = '101'
$m.Beitragsgruppe1 = '1'; $m.Beitragsgruppe2 = '1'; $m.Beitragsgruppe3 = '1'; $m.Beitragsgruppe4 = '1'
$m.Beginn = '20240301'
$m.Statuskennzeichen = '1'
$m.SchluesselNeu1 = '43112'; $m.SchluesselNeu2 = '1'; $m.SchluesselNeu3 = '14'
$m.KsKennzeichen = 'N'
$m.KsSchluessel = '01'
$m.KsDatum = '20240301'
$m.KsZeileA(1) = 'DE'
$m.KsZeileD(1) = '01'
$m.KsLetzter = 12
$m.Vorgang.Versicherungsnummer = '65170839J003'
$m.Vorgang.Aktenzeichen = 'P-0001'
$m.Vorgang.Familienname = 'Müller'
$m.Vorgang.Vorname = 'Jürgen'
$m.Vorgang.Geburtsdatum = '19830917'
$m.Vorgang.Geschlecht = 'M'
$m.Vorgang.Arbeitgeber.Betriebsnummer = '98765432'
$m.Empfaenger.Betriebsnummer = '12345671'
# The same report as JSON, as tamrel generate and tamrel read write it.
$m.ToJson()

$kom = New-Object -ComObject TamrelObj26.DSKOData
$kom.strBNRAb = '98765432'
$kom.strBNREm = '12345671'
$kom.strName1 = 'Muster Lohnbüro GmbH'
$satz = New-Object -ComObject TamrelObj26.DatensatzData
$satz.strBNRAb = '98765432'
$satz.strVersion = 'BEISPIEL'

# ISO-8859-1, each record ended by LF. strDatum is in/out: pass a
# reference to get the creation date back.
$gen = New-Object -ComObject TamrelFile26.clsGenMeldung
$datum = [ref]''
$records = @(
    $gen.GenVOSZ('98765432', '12345671', '1', 'Muster Lohnbüro GmbH', 0, $datum, $stamp)
    $gen.GenDSKO($kom, $stamp)
    $gen.GenData($m, $satz, 0, $stamp)
    $gen.GenNCSZ('98765432', '12345671', '1', '3', 0, $stamp)
)
$latin1 = [System.Text.Encoding]::GetEncoding('ISO-8859-1')
[System.IO.File]::WriteAllText("$PWD\deuev.txt", ($records -join "`n") + "`n", $latin1)
"created on $($datum.Value): $PWD\deuev.txt"

$proto = New-Object -ComObject TamrelFile26.clsProtoEntry
$proto.CreateProtoMeld($m, $false, '')

# Errors are COMExceptions: the error's number as HResult, the description
# as Message, the source where it arose as Source.
try {
    $m.Meldegrund = '99'
    $gen.GenData($m, $satz, 0, $stamp)
} catch [System.Runtime.InteropServices.COMException] {
    "error $($_.Exception.HResult) ($($_.Exception.Source)): $($_.Exception.Message)"
}
