"""The Python module against the library: calls, their errors, and whole
jobs into files and memory, compared with what tamrel generate writes.

    PYTHONPATH=build/python python3 -m unittest discover -s python/tests"""

import json
import os
import subprocess
import tempfile
import unittest

import tamrel

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
EXAMPLE = os.path.join(ROOT, "examples", "deuev-registration.json")
TAMREL = os.environ.get("TAMREL_EXE", os.path.join(ROOT, "build", "tamrel"))


def registration():
    with open(EXAMPLE, encoding="utf-8") as f:
        return json.load(f)


class Calls(unittest.TestCase):
    def test_a_frame_record(self):
        response = tamrel.call({"class": "clsGenMeldung", "method": "GenNCSZ", "now": "2024-03-01T10:11:12",
                                "args": {"strBNRAb": "98765432", "strBNREm": "12345671", "strFileNr": "1",
                                         "strCount": "2", "enmVerfahren": 0}})
        self.assertEqual(response["result"],
                         "NCSZAGDEU98765432       12345671       2024030100000100000002" + "01")
        self.assertEqual(response["log"], [])

    def test_a_failing_method_raises_its_error(self):
        with open(os.path.join(ROOT, "examples", "erst-reason-01-sickness.json"), encoding="utf-8") as f:
            job = json.load(f)
        report = dict(job["reports"][0], Betrag1="-5")
        with self.assertRaises(tamrel.Error) as caught:
            tamrel.call({"class": "clsGenErst", "method": "GenData", "now": job["now"],
                         "args": {"objErst": report, "udtDatensatzData": job["udtDatensatzData"],
                                  "datDate": job["datDate"]}})
        e = caught.exception
        self.assertEqual((e.number, e.source, e.description),
                         (-2147213200, "mlGen.StrToPB", "Der Betrag darf nicht negativ sein."))
        self.assertTrue(e.log[0].startswith("Fehler -2147213200 in TamrelFile26 1.0.0 (Zeile "), e.log)

    def test_a_request_that_is_not_valid(self):
        with self.assertRaises(tamrel.RequestError):
            tamrel.call({"class": "clsGenNothing", "method": "GenData", "args": {}})

    def test_version(self):
        self.assertEqual(tamrel.version(), "1.0.0")


class Jobs(unittest.TestCase):
    def test_files_and_memory_are_what_tamrel_generate_writes(self):
        with tempfile.TemporaryDirectory() as d:
            want, want_proto = os.path.join(d, "want.txt"), os.path.join(d, "want.prot")
            subprocess.run([TAMREL, "generate", EXAMPLE, "-o", want, "--protocol", want_proto], check=True,
                           stderr=subprocess.DEVNULL)
            out, proto = os.path.join(d, "out.txt"), os.path.join(d, "out.prot")
            code, messages = tamrel.generate(EXAMPLE, out, protocol=proto)
            self.assertEqual(code, 0)
            self.assertIn("2 reports written, 0 failed", messages)
            with open(want, "rb") as a, open(out, "rb") as b:
                self.assertEqual(a.read(), b.read())
            with open(want_proto, "rb") as a, open(proto, "rb") as b:
                self.assertEqual(a.read(), b.read())
            data, protocol, _ = tamrel.generate_bytes(registration())
            with open(want, "rb") as a:
                self.assertEqual(data, a.read())
            with open(want_proto, "rb") as a:
                self.assertEqual(protocol, a.read())

    def test_a_failing_job_raises_and_writes_nothing(self):
        job = registration()
        job["reports"][0]["Vorgang"]["Versicherungsnummer"] = "65170839J004"
        with tempfile.TemporaryDirectory() as d:
            out = os.path.join(d, "out.txt")
            with self.assertRaises(tamrel.GenerateError) as caught:
                tamrel.generate(job, out)
            self.assertEqual(caught.exception.code, 1)
            self.assertIn("VSNR-CHECKDIGIT", caught.exception.messages)
            self.assertFalse(os.path.exists(out))
            code, _ = tamrel.generate(job, out, keep_going=True)
            self.assertEqual(code, 3)
        with self.assertRaises(tamrel.GenerateError) as caught:
            tamrel.generate_bytes(job, colour=True)
        self.assertEqual(caught.exception.code, 2)


class Reads(unittest.TestCase):
    def test_a_file_reads_back_into_the_job_that_makes_it(self):
        data, _, _ = tamrel.generate_bytes(registration())
        with tempfile.TemporaryDirectory() as d:
            path = os.path.join(d, "deuev.txt")
            with open(path, "wb") as f:
                f.write(data)
            job = tamrel.read(path)
        self.assertEqual(len(job["reports"]), 2)
        self.assertNotIn("returned_errors", job)
        self.assertEqual(tamrel.generate_bytes(job)[0], data)

    def test_a_returned_file_gives_its_errors_with_their_property(self):
        data, _, _ = tamrel.generate_bytes(registration())
        lines = data.split(b"\n")
        # The first report returned with one error block: flag and count set.
        lines[2] = lines[2][:61] + b"11" + lines[2][63:] + b"DBFEDSME060 " + b"VSNR ungueltig".ljust(64)
        returned = b"\n".join(lines)
        errors = tamrel.returned_errors(returned)
        self.assertEqual([(e["record"], e["report"], e["number"], e["property"]) for e in errors],
                         [(3, 1, "DSME060", "Vorgang.Versicherungsnummer")])
        self.assertEqual(tamrel.read(returned)["returned_errors"], errors)

    def test_what_cannot_be_read_back_raises(self):
        with self.assertRaises(tamrel.ReadError) as caught:
            tamrel.read(b"no transfer file\n")
        self.assertEqual(caught.exception.code, 3)
        self.assertIn("record 1", caught.exception.messages)
        self.assertEqual(tamrel.read(b"no transfer file\n", partial=True)["reports"], [])
        with self.assertRaises(tamrel.ReadError) as caught:
            tamrel.read(b"", encoding="EBCDIC")
        self.assertEqual(caught.exception.code, 2)


if __name__ == "__main__":
    unittest.main()
