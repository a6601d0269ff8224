#!/usr/bin/env python3
"""Writes the seed corpora of the fuzzers from the example jobs: one request
per method of every class for the call-protocol fuzzer, the jobs themselves
for the generate fuzzer, and each report as a line for the report-line
fuzzer. Run from the repository root; the output is
committed under tests/fuzz/corpus/."""
import json, pathlib

PROTO = {"clsGenMeldung": "CreateProtoMeld", "clsGenBeitrNachw": "CreateProtoBeitr",
         "clsGenBeitrErh": "CreateProtoBeitrErh", "clsGenErst": "CreateProtoErst",
         "clsGenZahl": "CreateProtoZahl", "clsGenBetrieb": "CreateProtoBetrieb",
         "clsGenArbeitsBesch": "CreateProtoArbeitsBesch", "clsGenEntgelt": "CreateProtoEntgelt",
         "clsGenAbfrVers": "CreateProtoAbfrVers", "clsGenAbfrStammdatenUV": "CreateProtoAbfrStammdatenUV",
         "clsGenLohnnachweis": "CreateProtoLohnnachweis"}


# The report-line fuzzer's classes, chosen by an input's first byte.
LINE_CLASSES = ["clsGenMeldung", "clsGenBeitrNachw", "clsGenBeitrErh", "clsGenErst", "clsGenZahl",
                "clsGenBetrieb", "clsGenArbeitsBesch", "clsGenEntgelt", "clsGenAbfrVers",
                "clsGenAbfrStammdatenUV", "clsGenLohnnachweis", "clsGenAsyl"]


def obj_param(cls):
    return "obj" + cls[len("clsGen"):]


def requests(job):
    cls = job["class"]
    common = {k: job[k] for k in ("now", "tests") if k in job}
    date = {"datDate": job["datDate"]} if "datDate" in job else {}
    verf = {"enmVerfahren": job.get("enmVerfahren", 0)}
    frame = {k: job[k] for k in ("strBNRAb", "strBNREm", "strFileNr") if k in job}
    vosz = dict(frame, strFirma=job.get("strFirma", ""), **date)
    if "strDatum" in job: vosz["strDatum"] = job["strDatum"]
    if cls != "clsGenBeitrErh": vosz.update(verf)
    yield dict(common, **{"class": cls, "method": "GenVOSZ", "args": vosz})
    if cls != "clsGenAsyl":
        dsko = dict({"udtDSKOData": job.get("udtDSKOData", {})}, **date)
        if cls == "clsGenBeitrNachw": dsko.update(verf)
        yield dict(common, **{"class": cls, "method": "GenDSKO", "args": dsko})
    ncsz = dict(frame, strCount="3", **date)
    if cls in ("clsGenMeldung", "clsGenBeitrNachw"): ncsz.update(verf)
    yield dict(common, **{"class": cls, "method": "GenNCSZ", "args": ncsz})
    dd = job.get("udtDatensatzData", {})
    for report in job.get("reports", [])[:2]:
        args = {obj_param(cls): report, **date}
        if cls == "clsGenBeitrNachw":
            args.update({k: dd.get(k, "") for k in ("strBNRAb", "strBNRSt", "strVersion", "strMicroseconds")})
        else:
            args["udtDatensatzData"] = dd
        if cls == "clsGenMeldung": args.update(verf)
        yield dict(common, **{"class": cls, "method": "GenData", "args": args})
        if cls in PROTO:
            yield dict(common, **{"class": "clsProtoEntry", "method": PROTO[cls],
                                  "args": {obj_param(cls): report, "blnError": False, "strErrText": ""}})


def main():
    out_call = pathlib.Path("tests/fuzz/corpus/call_line")
    out_job = pathlib.Path("tests/fuzz/corpus/generate_job")
    out_line = pathlib.Path("tests/fuzz/corpus/report_line")
    for d in (out_call, out_job, out_line):
        d.mkdir(parents=True, exist_ok=True)
    for path in sorted(pathlib.Path("examples").glob("*.json")):
        job = json.loads(path.read_text(encoding="utf-8"))
        if "reports" not in job:
            continue
        # The first byte chooses the settings ("0": stop at the first failure, ISO-8859-1, LF).
        (out_job / path.name).write_text("0" + json.dumps(job, ensure_ascii=False), encoding="utf-8")
        for i, r in enumerate(requests(job)):
            name = f"{path.stem}-{i:02d}-{r['method']}.json"
            (out_call / name).write_text(json.dumps(r, ensure_ascii=False), encoding="utf-8")
        choice = chr(ord("0") + LINE_CLASSES.index(job["class"]))  # "0" is 48, 48 % 12 == 0
        for i, report in enumerate(job["reports"]):
            text = json.dumps(report, ensure_ascii=False, separators=(",", ":"))
            (out_line / f"{path.stem}-{i:02d}.json").write_text(choice + text, encoding="utf-8")


main()
