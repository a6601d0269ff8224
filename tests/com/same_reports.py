#!/usr/bin/env python3
"""Compares the data objects' ToJson() lines (UTF-16, as the script wrote
them) with the job's reports: each line must be its report, as JSON values.

    same_reports.py JOB.json TOJSON.txt
"""
import json
import sys


def main():
    reports = json.load(open(sys.argv[1], encoding="utf-8"))["reports"]
    lines = open(sys.argv[2], encoding="utf-16").read().splitlines()
    if len(lines) != len(reports):
        sys.exit(f"{len(lines)} ToJson() lines for {len(reports)} reports")
    for n, (line, report) in enumerate(zip(lines, reports), 1):
        got = json.loads(line)
        if got != report:
            keys = sorted(set(got) | set(report))
            diff = [k for k in keys if got.get(k) != report.get(k)]
            sys.exit(f"report {n}: ToJson() differs in {', '.join(diff)}:\n  {line}\n  {json.dumps(report, ensure_ascii=False)}")


main()
