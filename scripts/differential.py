#!/usr/bin/env python3
"""Runs two builds of `tamrel generate` over mutated reports of every example
job and compares what they write, byte for byte: the transfer file, the
protocol, the log lines, standard error and the exit code. Used when the
builders are reworked without a change of behaviour.

    scripts/differential.py OLD_TAMREL NEW_TAMREL [ROUNDS]
"""
import json, os, random, re, subprocess, sys, tempfile

HOSTILE = ["", " ", "0", "1", "-1", "99", "123456789012345678901234567890123456789",
           "Müller", "ß€Œ", "12345678A123", "20240301", "99999999", "2024-13-45", "J", "N",
           "&<>", "9" * 60, "-", "1,5", "12.34", "  7", "D", "A1", "2", "46", "10", "58", "92"]

def mutate(value, rnd):
    if isinstance(value, bool):
        return not value if rnd.random() < 0.5 else value
    if isinstance(value, int):
        return rnd.choice([0, 1, -1, 2, 12, 99, 100, 32767, -32768, 2147483647, value + 1])
    if isinstance(value, str):
        return rnd.choice(HOSTILE + [value[::-1], value + value])
    if isinstance(value, list):
        return [mutate(v, rnd) if rnd.random() < 0.3 else v for v in value]
    if isinstance(value, dict):
        return {k: (mutate(v, rnd) if rnd.random() < 0.15 else v) for k, v in value.items()}
    return value

def run(binary, job, out_dir, extra):
    out = os.path.join(out_dir, "out")
    proto = os.path.join(out_dir, "proto")
    log = os.path.join(out_dir, "log")
    for f in (out, proto, log):
        if os.path.exists(f): os.remove(f)
    p = subprocess.run([binary, "generate", job, "-o", out, "--protocol", proto, "--log", log] + extra,
                       capture_output=True)
    read = lambda f: open(f, "rb").read() if os.path.exists(f) else None
    return (p.returncode, p.stdout, p.stderr, read(out), read(proto), read(log))

def same_run(result, binary):
    """The run's result without what differs between two runs of one build:
    the program's path and the time taken."""
    err = re.sub(rb"\d+\.\d\d s", b"T s", result[2].replace(binary.encode(), b"TAMREL"))
    return (result[0], result[1], err, *result[3:])

def main():
    old, new = sys.argv[1], sys.argv[2]
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 40
    root = os.path.join(os.path.dirname(__file__), "..", "examples")
    rnd = random.Random(20261126)
    compared = differ = 0
    with tempfile.TemporaryDirectory() as tmp:
        dir_a, dir_b = os.path.join(tmp, "a"), os.path.join(tmp, "b")
        os.makedirs(dir_a), os.makedirs(dir_b)
        for name in sorted(os.listdir(root)):
            if not name.endswith(".json"): continue
            job = json.load(open(os.path.join(root, name), encoding="utf-8"))
            if "reports" not in job: continue
            for r in range(rounds):
                mutated = dict(job)
                mutated["reports"] = [mutate(rep, rnd) for rep in job["reports"]]
                # Now and then a clock before 2014, where some fields change their form.
                mutated["now"] = "2013-06-01T08:00:00" if r % 5 == 4 else job.get("now", "2024-03-01T10:11:12")
                path = os.path.join(tmp, "job.json")
                json.dump(mutated, open(path, "w", encoding="utf-8"), ensure_ascii=False)
                extra = [["--keep-going", "--no-check"], ["--keep-going"], []][r % 3]
                a, b = run(old, path, dir_a, extra), run(new, path, dir_b, extra)
                compared += 1
                a, b = same_run(a, old), same_run(b, new)
                if a != b:
                    differ += 1
                    keep = os.path.join("/tmp", f"differ-{name}-{r}.json")
                    json.dump(mutated, open(keep, "w", encoding="utf-8"), ensure_ascii=False)
                    print(f"DIFFER {name} round {r} {extra}: kept as {keep}")
    print(f"{compared} runs compared, {differ} differ")
    sys.exit(1 if differ else 0)

main()
