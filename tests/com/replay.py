#!/usr/bin/env python3
"""Replays reports through the COM server's vtable client and through
`tamrel call`, and requires the same result, or the same error number,
source, description and log lines, for each.

usage: replay.py TAMREL WORKDIR WINE CLIENT_EXE

Each case is an example job with one report changed; a case whose data
object raises while being read has no counterpart in the call protocol,
and expects the object's own error and one log line naming the object.
"""
import copy
import json
import re
import subprocess
import sys

tamrel, work, wine, client = sys.argv[1:5]

RAISING = [-2146828283, "Personal.Stammdaten", "Familienname nicht geladen (Satz gesperrt)"]

# Stands for the report's receiver in the test answers.
RECEIVER = "<Empfaenger.Betriebsnummer>"

# A report of kind 8 whose name block depends on the name test alone.
NAME_TEST = {"Meldegrund": "30", "Meldungsart": 8, "MitNamensdaten": False, "Vorgang": {"Bezugskennung": "A1234567"}}

# (name, example, changes to its first report, the job's test answers)
CASES = [
    ("negative amount", "zahl-pay-agency", {"ZKBetrag1": "-5"}, None),
    ("unknown report reason", "deuev-registration", {"Meldegrund": "99"}, None),
    ("invalid amount characters", "erst-reason-01-sickness", {"Betrag1": "12a"}, None),
    ("a property that raises", "deuev-registration", {"Vorgang": {"Familienname": {"$raise": RAISING}}}, None),
    ("name test answered true", "deuev-registration", NAME_TEST, {"NameTest": ["A1234567"]}),
    ("name test answered false", "deuev-registration", NAME_TEST, {"NameTest": []}),
    ("receiver tests answered true", "beitrag-statement", {"Nachweisart": 1}, {"EmpfBknTest2": [RECEIVER]}),
    ("receiver tests answered false", "beitrag-statement", {"Nachweisart": 1}, {}),
]

OBJ = {"clsGenMeldung": "objMeldung", "clsGenBeitrNachw": "objBeitrNachw", "clsGenZahl": "objZahl",
       "clsGenErst": "objErst"}


def merge(target, changes):
    for k, v in changes.items():
        if isinstance(v, dict) and "$raise" not in v and isinstance(target.get(k), dict):
            merge(target[k], v)
        else:
            target[k] = v


def request(job):
    cls = job["class"]
    args = {OBJ[cls]: job["reports"][0], "datDate": job["datDate"]}
    if cls == "clsGenBeitrNachw":
        for k in ("strBNRAb", "strBNRSt", "strVersion", "strMicroseconds"):
            args[k] = job["udtDatensatzData"].get(k, "")
    else:
        args["udtDatensatzData"] = job["udtDatensatzData"]
    if cls == "clsGenMeldung":
        args["enmVerfahren"] = job.get("enmVerfahren", 0)
    r = {"class": cls, "method": "GenData", "args": args, "now": job["now"]}
    if "tests" in job:
        r["tests"] = job["tests"]
    return r


def windows(path):
    return "Z:" + path.replace("/", "\\")


failed = 0
results = {}
for name, example, changes, tests in CASES:
    job = json.load(open(f"examples/{example}.json", encoding="utf-8"))
    job["reports"] = [copy.deepcopy(job["reports"][0])]
    merge(job["reports"][0], changes)
    if tests is not None:
        receiver = job["reports"][0].get("Empfaenger", {}).get("Betriebsnummer", "")
        job["tests"] = {k: [receiver if t == RECEIVER else t for t in v] for k, v in tests.items()}
    path = f"{work}/{name.replace(' ', '-')}.json"
    json.dump(job, open(path, "w", encoding="utf-8"), ensure_ascii=False)
    got = json.loads(subprocess.run([wine, windows(client), "data", windows(path)], capture_output=True,
                                    check=True).stdout.decode("utf-8").splitlines()[0])
    if RAISING in [v.get("$raise") for v in job["reports"][0].get("Vorgang", {}).values() if isinstance(v, dict)]:
        want = {"error": dict(zip(("number", "source", "description"), RAISING))}
        line = re.compile(r"Fehler -2146828283 in TamrelFile26 [0-9.]+ \(Zeile 0\): objMeldung -> "
                          + re.escape(RAISING[2]) + "$")
        log_ok = len(got.get("log", [])) == 1 and line.match(got["log"][0])
    else:
        call = subprocess.run([tamrel, "call"], input=json.dumps(request(job)).encode(), capture_output=True,
                              check=True)
        want = json.loads(call.stdout)
        log_ok = got.get("log") == want.get("log")
    same = got.get("result") == want.get("result") and got.get("error") == want.get("error") and log_ok
    results[name] = got.get("result")
    print(("ok   " if same else "FAIL ") + name)
    if not same:
        failed += 1
        print("  COM:  " + json.dumps(got, ensure_ascii=False)[:600])
        print("  call: " + json.dumps(want, ensure_ascii=False)[:600])

# The test answers must reach the records: true and false differ.
for what in ("name test", "receiver tests"):
    if results[f"{what} answered true"] == results[f"{what} answered false"]:
        failed += 1
        print(f"FAIL {what}: the answer does not change the record")
print(f"{len(CASES) - failed} passed, {failed} failed")
sys.exit(1 if failed else 0)
