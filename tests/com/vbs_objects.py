#!/usr/bin/env python3
"""Writes a VBScript that calls every protocol line of clsProtoEntry with
data objects that are VBScript classes, as a scripting host's program has
them, and checks each line against `tamrel generate --protocol`.

usage: vbs_objects.py WORKDIR

For each example job (except the XML report, which has no protocol line)
WORKDIR holds, from scripts/com-test.sh: NAME.trace (every property read of
the server, "path<TAB>property<TAB>index", from com_client trace) and
NAME.want-proto (the protocol lines of tamrel generate). Writes
WORKDIR/protocol.vbs and WORKDIR/protocol-values.txt (UTF-16, "key<TAB>value"
a line: the texts, so that the script itself stays ASCII).
"""
import glob
import json
import os
import sys

work = sys.argv[1]
PROTO = {"clsGenBeitrNachw": ("CreateProtoBeitr", "objBeitrNachw"), "clsGenMeldung": ("CreateProtoMeld", "objMeldung"),
         "clsGenBeitrErh": ("CreateProtoBeitrErh", "objBeitrErh"), "clsGenErst": ("CreateProtoErst", "objErst"),
         "clsGenZahl": ("CreateProtoZahl", "objZahl"), "clsGenBetrieb": ("CreateProtoBetrieb", "objBetrieb"),
         "clsGenEntgelt": ("CreateProtoEntgelt", "objEntgelt"),
         "clsGenArbeitsBesch": ("CreateProtoArbeitsBesch", "objArbeitsBesch"),
         "clsGenAbfrVers": ("CreateProtoAbfrVers", "objAbfrVers"),
         "clsGenAbfrStammdatenUV": ("CreateProtoAbfrStammdatenUV", "objAbfrStammdatenUV"),
         "clsGenLohnnachweis": ("CreateProtoLohnnachweis", "objLohnnachweis")}

values = []  # the texts, by key "kN"
classes = []  # VBScript class definitions
code = []  # the statements that build the objects and check the lines
counter = [0]


def text(s):
    values.append(s)
    return 'V("k%d")' % (len(values) - 1)


def literal(v):
    if isinstance(v, bool):
        return "True" if v else "False"
    if isinstance(v, int):
        return "CLng(%d)" % v if abs(v) > 32767 else str(v)
    return text(str(v))


def class_name(prefix, path):
    return prefix + "_" + path.replace(".", "_").replace("()", "_")


def shapes(trace_file):
    """path -> {property: indexed?}, from the server's reads."""
    shape = {}
    for line in open(trace_file, encoding="utf-8"):
        path, name, index = line.rstrip("\r\n").split("\t")
        props = shape.setdefault(path, {})
        props[name] = props.get(name, False) or index != "0"
    return shape


def define(prefix, shape):
    for path, props in shape.items():
        lines = ["Class " + class_name(prefix, path)]
        for name, indexed in props.items():
            if indexed:
                # Entries added to a Dictionary: wine's VBScript can neither
                # ReDim a class member nor Set a Dictionary item.
                lines += ["    Private d_%s" % name,
                          "    Public Property Get %s(i)" % name,
                          "        If IsObject(d_%s) Then" % name,
                          "            If d_%s.Exists(i) Then" % name,
                          "                If IsObject(d_%s.Item(i)) Then Set %s = d_%s.Item(i) Else %s = d_%s.Item(i)" % ((name,) * 5),
                          "            End If",
                          "        End If",
                          "    End Property",
                          "    Public Sub Put_%s(i, v)" % name,
                          "        If Not IsObject(d_%s) Then Set d_%s = CreateObject(\"Scripting.Dictionary\")" % (name, name),
                          "        d_%s.Add i, v" % name,
                          "    End Sub"]
            else:
                lines.append("    Public " + name)
        lines.append("End Class")
        classes.append("\n".join(lines))


def find(obj, name):
    for k, v in obj.items():
        if k.lower() == name.lower():
            return v
    return None


def indices(v):
    if isinstance(v, list):
        return list(range(1, len(v) + 1)) if all(not isinstance(e, dict) for e in v) else []
    if isinstance(v, dict) and v and all(k.isdigit() and not isinstance(e, dict) for k, e in v.items()):
        return [int(k) for k in v]
    return []


def derived(value, name):
    """What the JSON reader takes for a property the JSON leaves out (as com_client does)."""
    low = name.lower()
    if low.endswith("erster") or low.endswith("letzter"):
        found = [i for k, v in value.items() if k.lower().startswith(low[:2]) for i in indices(v)]
        return (min(found) if found else 1) if low.endswith("erster") else (max(found) if found else 0)
    if low.startswith("anzahl"):
        group = {"anzahlpositionen": "Position", "anzahlau": "Vorerkrankungen"}.get(low, name[6:])
        items = find(value, group)
        return len(items) if isinstance(items, list) else None
    return None


def build(prefix, shape, path, value):
    """Statements that make the object at `path` from its JSON; returns its variable."""
    counter[0] += 1
    var = "o%d" % counter[0]
    code.append("Set %s = New %s" % (var, class_name(prefix, path)))
    for name, indexed in shape[path].items():
        v = find(value, name)
        if v is None:
            v = derived(value, name)
        if v is None:
            continue
        if indexed:
            entries = enumerate(v, 1) if isinstance(v, list) else ((int(k), e) for k, e in v.items())
            for i, e in entries:
                if isinstance(e, dict):
                    code.append("%s.Put_%s %d, %s" % (var, name, i, build(prefix, shape, path + "." + name + "()", e)))
                elif e is not None:
                    code.append("%s.Put_%s %d, %s" % (var, name, i, literal(e)))
        elif isinstance(v, dict):
            if path + "." + name in shape:
                code.append("Set %s.%s = %s" % (var, name, build(prefix, shape, path + "." + name, v)))
        else:
            code.append("%s.%s = %s" % (var, name, literal(v)))
    return var


checks = 0
for n, job_file in enumerate(sorted(glob.glob("examples/*.json"))):
    name = os.path.basename(job_file)[:-5]
    job = json.load(open(job_file, encoding="utf-8"))
    if job["class"] not in PROTO:
        continue
    method, obj = PROTO[job["class"]]
    shape = shapes(f"{work}/{name}.trace")
    prefix = "E%d" % n
    define(prefix, shape)
    want = open(f"{work}/{name}.want-proto", encoding="latin-1").read().splitlines()
    for i, report in enumerate(job["reports"]):
        var = build(prefix, shape, "obj", report)
        code.append('CheckEqual p.%s(%s, False, ""), %s, "%s report %d (%s)"'
                    % (method, var, text(want[i]), name, i + 1, method))
        checks += 1

script = ["' Generated by tests/com/vbs_objects.py: every protocol line with VBScript data objects.",
          "Option Explicit",
          "Dim passed, failed, values, p",
          "passed = 0", "failed = 0",
          "Function V(key)", "    V = values(key)", "End Function",
          "Sub CheckEqual(actual, wanted, what)",
          "    If actual = wanted Then",
          "        passed = passed + 1",
          "    Else",
          "        failed = failed + 1",
          '        WScript.Echo "FAILED: " & what & ": got [" & actual & "], expected [" & wanted & "]"',
          "    End If",
          "End Sub"]
script += classes
script += ["Set values = CreateObject(\"Scripting.Dictionary\")",
           "Dim f, line, tab",
           "Set f = CreateObject(\"Scripting.FileSystemObject\").OpenTextFile(WScript.Arguments(0), 1, False, -1)",
           "Do While Not f.AtEndOfStream",
           "    line = f.ReadLine", "    tab = InStr(line, vbTab)",
           "    values(Left(line, tab - 1)) = Mid(line, tab + 1)",
           "Loop", "f.Close",
           "Set p = CreateObject(\"TamrelFile26.clsProtoEntry\")",
           "Dim " + ", ".join("o%d" % i for i in range(1, counter[0] + 1))]
script += code
script += ['WScript.Echo passed & " passed, " & failed & " failed"', 'WScript.Echo "END OF PROTOCOL TESTS"']
open(f"{work}/protocol.vbs", "w", encoding="ascii", newline="\r\n").write("\n".join(script) + "\n")
data = "\ufeff" + "".join("k%d\t%s\r\n" % (i, v) for i, v in enumerate(values))
open(f"{work}/protocol-values.txt", "wb").write(data.encode("utf-16-le"))
print(f"vbs_objects: {checks} protocol lines to check")
