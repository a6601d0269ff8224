# PowerShell with TamrelFile26.dll: the frame records of a DEUEV file and an
# error caught. 64-bit PowerShell loads the x86_64 DLL; the i686 one needs
# the 32-bit PowerShell (%SystemRoot%\SysWOW64\WindowsPowerShell\v1.0\powershell.exe).
# Data objects must be automation objects (a .NET class visible to COM, or
# your data-object library's objects); PowerShell's own objects are not.
$ErrorActionPreference = 'Stop'
$gen = New-Object -ComObject TamrelFile26.clsGenMeldung
$stamp = Get-Date '2024-03-01 10:11:12'

# strDatum is in/out: pass a reference to get the creation date back.
$datum = [ref]''
$gen.GenVOSZ('98765432', '12345671', '1', 'Muster Lohnbüro GmbH', 0, $datum, $stamp)
"created on $($datum.Value)"
$gen.GenNCSZ('98765432', '12345671', '1', '3', 0, $stamp)

# Errors are COMExceptions: the error's number as HResult, the description
# as Message, the source where it arose as Source.
try {
    $proto = New-Object -ComObject TamrelFile26.clsProtoEntry
    $proto.CreateProtoMeld($null, $false)
} catch [System.Runtime.InteropServices.COMException] {
    "error $($_.Exception.HResult) ($($_.Exception.Source)): $($_.Exception.Message)"
}
