#!/usr/bin/env python3
"""Writes a VBScript program that makes a job's whole transfer file through
TamrelFile26.dll as a scripting host would, with no class of its own: each
report a TamrelObj26 data object, the structures TamrelObj26.DSKOData and
TamrelObj26.DatensatzData objects, every call late bound. The file is
written as UTF-16 to the first path given to the script, and each report's
ToJson() after its GenData, a line each, to the second.

    job_to_vbs.py JOB.json [--json] > JOB.vbs     (Windows-1252, as wine's cscript reads a script)

With --json each data object takes its report's JSON by LoadJson, and the
report is built from a second object that took the first one's ToJson().
"""
import json
import sys


def lit(v):
    if isinstance(v, bool):
        return "True" if v else "False"
    if isinstance(v, (int, float)):
        return repr(v)
    return '"' + str(v).replace('"', '""') + '"'


def is_index_map(v):
    return isinstance(v, dict) and v and all(k.lstrip("-").isdigit() for k in v)


def fill(target, obj, lines, depth=0):
    """Statements that copy a report's JSON into the data object `target`."""
    for k, v in obj.items():
        if v is None:
            continue
        if is_index_map(v):
            lines += [f"{target}.{k}({i}) = {lit(e)}" for i, e in v.items()]
        elif isinstance(v, dict):
            fill(f"{target}.{k}", v, lines, depth)
        elif isinstance(v, list) and v and isinstance(v[0], dict):
            item = f"item{depth}"
            for e in v:
                lines.append(f"Set {item} = {target}.Add{k}()")
                fill(item, e, lines, depth + 1)
        elif isinstance(v, list):
            lines += [f"{target}.{k}({i + 1}) = {lit(e)}" for i, e in enumerate(v)]
        else:
            lines.append(f"{target}.{k} = {lit(v)}")


def structure(var, kind, values, lines):
    lines.append(f'Set {var} = CreateObject("TamrelObj26.{kind}")')
    lines += [f"{var}.{k} = {lit(v)}" for k, v in values.items() if v is not None]


def main():
    job = json.load(open(sys.argv[1], encoding="utf-8"))
    cls = job["class"]
    obj = cls[len("clsGen"):]
    verf = job.get("enmVerfahren", 0)
    verf = {"vmNormal": 0, "vmSofort": 1, "vmBV": 2}.get(verf, verf) if isinstance(verf, str) else verf
    a, e, f = (lit(job.get(k, "")) for k in ("strBNRAb", "strBNREm", "strFileNr"))
    firma = lit(job.get("strFirma", ""))
    date = job.get("datDate")
    stamp = ", stamp" if date else ""
    xml = cls == "clsGenAsyl"
    L = ["Option Explicit",
         "Dim fso, out, js, g, stamp, datum, kom, satz, o, copy, item0, item1, item2",
         'Set fso = CreateObject("Scripting.FileSystemObject")',
         "Set out = fso.CreateTextFile(WScript.Arguments(0), True, True)",
         "Set js = fso.CreateTextFile(WScript.Arguments(1), True, True)",
         f'Set g = CreateObject("TamrelFile26.{cls}")',
         f"datum = {lit(job.get('strDatum', ''))}"]
    if date:
        L.append(f'stamp = CDate("{date.replace("T", " ")}")')
    if xml:
        L += ['out.WriteLine "<?xml version=""1.0"" encoding=""ISO-8859-1""?>"',
              'out.WriteLine "<kotkv xmlns:xsi=""http://www.w3.org/2001/XMLSchema-instance"">"']
    if cls == "clsGenBeitrErh":
        L.append(f"out.WriteLine g.GenVOSZ({a}, {e}, {f}, {firma}, datum{stamp})")
    elif cls == "clsGenBeitrNachw":
        L.append(f"out.WriteLine g.GenVOSZ({a}, {e}, {f}, {verf}, {firma}, datum{stamp})")
    else:
        L.append(f"out.WriteLine g.GenVOSZ({a}, {e}, {f}, {firma}, {verf}, datum{stamp})")
    if not xml:
        structure("kom", "DSKOData", job.get("udtDSKOData", {}), L)
        enm = f", {verf}" if cls == "clsGenBeitrNachw" else ""
        L.append(f"out.WriteLine g.GenDSKO(kom{enm}{stamp})")
    dd = job.get("udtDatensatzData", {})
    by_json = "--json" in sys.argv[2:]
    for report in job["reports"]:
        L.append(f'Set o = CreateObject("TamrelObj26.{obj}")')
        if by_json:
            L += [f"o.LoadJson {lit(json.dumps(report, ensure_ascii=False))}",
                  f'Set copy = CreateObject("TamrelObj26.{obj}")',
                  "copy.LoadJson o.ToJson()",
                  "Set o = copy"]
        else:
            fill("o", report, L)
        if cls == "clsGenBeitrNachw":
            args = ", ".join(lit(dd.get(k, "")) for k in ("strBNRAb", "strBNRSt", "strVersion", "strMicroseconds"))
            L.append(f"out.WriteLine g.GenData(o, {args}{stamp})")
        else:
            structure("satz", "DatensatzData", dd, L)  # each report from the job's values
            enm = f", {verf}" if cls == "clsGenMeldung" else ""
            L.append(f"out.WriteLine g.GenData(o, satz{enm}{stamp})")
        L.append("js.WriteLine o.ToJson()")
    count = len(job["reports"]) + (0 if xml else 1)
    enm = f", {verf}" if cls in ("clsGenMeldung", "clsGenBeitrNachw") else ""
    L.append(f'out.WriteLine g.GenNCSZ({a}, {e}, {f}, "{count}"{enm}{stamp})')
    if xml:
        L.append('out.WriteLine "</kotkv>"')
    L += ["out.Close", "js.Close", 'WScript.Echo "END OF FILE"']
    sys.stdout.buffer.write(("\r\n".join(L) + "\r\n").encode("cp1252"))


main()
