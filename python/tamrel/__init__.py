"""tamrel for Python: the call protocol and whole generate jobs, through
tamrel's C interface (libtamrel.so), with nothing but the standard library.

    import tamrel
    response = tamrel.call({"class": "clsGenMeldung", "method": "GenNCSZ",
                            "args": {"strBNRAb": "98765432", "strBNREm": "12345671",
                                     "strFileNr": "1", "strCount": "2", "enmVerfahren": 0}})
    print(response["result"])
    tamrel.generate("examples/deuev-registration.json", "deuev.txt", protocol="deuev.prot")
    job = tamrel.read("deuev.txt")                 # the file back into its job
    errors = tamrel.returned_errors("returned.txt")  # a return's errors, each with its property

A method that fails as the component would raises tamrel.Error (number,
source, description, log); a request that is not valid raises
tamrel.RequestError; a job that fails raises tamrel.GenerateError; a file
that cannot be read back raises tamrel.ReadError.
"""

import ctypes
import json
import os

from ._library import LIBRARY

__all__ = ["call", "generate", "generate_bytes", "read", "returned_errors", "version", "Error", "RequestError",
           "GenerateError", "ReadError"]


class Error(Exception):
    """A method failed as the component would: its error number, source and
    description, and the log lines of every routine on the way."""

    def __init__(self, number, source, description, log):
        super().__init__(f"{number} {source}: {description}")
        self.number, self.source, self.description, self.log = number, source, description, log


class RequestError(ValueError):
    """The request itself is not valid: not JSON, an unknown class, method or
    argument, a value of the wrong type."""


class GenerateError(Exception):
    """A generate job wrote nothing: `code` is tamrel generate's exit code
    (1 a report failed, 2 the job or options are not valid, 4 an output could
    not be written), `messages` what it said."""

    def __init__(self, code, messages):
        super().__init__(messages.strip() or f"exit code {code}")
        self.code, self.messages = code, messages


class ReadError(Exception):
    """A file was not read back whole: `code` is tamrel read's exit code (2 no
    transfer file or options not valid, 3 records skipped), `messages` what it
    said of each record it skipped, `job` the job of what was read (None for 2)."""

    def __init__(self, code, messages, job=None):
        super().__init__(messages.strip() or f"exit code {code}")
        self.code, self.messages, self.job = code, messages, job


def _load():
    path = os.environ.get("TAMREL_LIBRARY") or os.path.join(os.path.dirname(__file__), LIBRARY)
    lib = ctypes.CDLL(path if os.path.exists(path) else "libtamrel.so.1")
    lib.tamrel_call.argtypes = [ctypes.c_char_p]
    lib.tamrel_call.restype = ctypes.c_void_p
    lib.tamrel_generate.argtypes = [ctypes.c_char_p, ctypes.c_char_p, ctypes.POINTER(ctypes.c_void_p)]
    lib.tamrel_generate.restype = ctypes.c_int
    lib.tamrel_generate_memory.argtypes = [
        ctypes.c_char_p, ctypes.c_char_p, ctypes.POINTER(ctypes.c_void_p), ctypes.POINTER(ctypes.c_size_t),
        ctypes.POINTER(ctypes.c_void_p), ctypes.POINTER(ctypes.c_void_p)]
    lib.tamrel_generate_memory.restype = ctypes.c_int
    lib.tamrel_read.argtypes = [ctypes.c_char_p, ctypes.c_size_t, ctypes.c_char_p, ctypes.POINTER(ctypes.c_void_p),
                                ctypes.POINTER(ctypes.c_void_p), ctypes.POINTER(ctypes.c_void_p)]
    lib.tamrel_read.restype = ctypes.c_int
    lib.tamrel_free.argtypes = [ctypes.c_void_p]
    lib.tamrel_version.restype = ctypes.c_char_p
    return lib


_lib = _load()


def _taken(pointer, length=None):
    """The bytes the library returned, freed."""
    if not pointer:
        return None
    try:
        return ctypes.string_at(pointer, length) if length is not None else ctypes.string_at(pointer)
    finally:
        _lib.tamrel_free(pointer)


def version():
    """The library's version, "1.0.0"."""
    return _lib.tamrel_version().decode()


def call(request):
    """One request of the call protocol (a dict, or its JSON text); returns
    the response ({"result": …, "out": {…}, "log": […]})."""
    # Written as UTF-8 without escapes, compact: the form tamrel reads fastest.
    text = request if isinstance(request, str) else json.dumps(request, ensure_ascii=False, separators=(",", ":"))
    answer = _taken(_lib.tamrel_call(text.encode("utf-8", "surrogatepass")))
    if answer is None:
        raise MemoryError("tamrel_call")
    response = json.loads(answer)
    if "request_error" in response:
        raise RequestError(response["request_error"])
    if "error" in response:
        e = response["error"]
        raise Error(e["number"], e["source"], e["description"], response.get("log", []))
    return response


def _job_and_options(job, options):
    """The job's JSON text and the options' (a job file's folder resolves a
    relative reports_file)."""
    if isinstance(job, (str, os.PathLike)) and not str(job).lstrip().startswith("{"):
        with open(job, encoding="utf-8") as f:
            text = f.read()
        options.setdefault("folder", os.path.dirname(os.path.abspath(job)))
    else:
        text = job if isinstance(job, str) else json.dumps(job)
    return text.encode(), json.dumps(options).encode()


def generate(job, path, protocol=None, **options):
    """Runs a generate job (a dict, its JSON text, or a job file's path) into
    the transfer file `path` and, if given, the protocol file, as tamrel
    generate does; the options are those of the C interface (encoding, crlf,
    keep_going, transliterate, check, findings, log, reports). Returns the
    exit code (0, or 3 when failed reports were left out) and the
    messages."""
    options = dict(options, output=os.fspath(path))
    if protocol is not None:
        options["protocol"] = os.fspath(protocol)
    job_text, options_text = _job_and_options(job, options)
    messages = ctypes.c_void_p()
    code = _lib.tamrel_generate(job_text, options_text, ctypes.byref(messages))
    said = (_taken(messages.value) or b"").decode()
    if code not in (0, 3):
        raise GenerateError(code, said)
    return code, said


def generate_bytes(job, **options):
    """As generate, into memory: returns the transfer file's bytes, the
    protocol's bytes (empty where the class has none) and the messages."""
    job_text, options_text = _job_and_options(job, dict(options))
    file, protocol, messages = ctypes.c_void_p(), ctypes.c_void_p(), ctypes.c_void_p()
    length = ctypes.c_size_t()
    code = _lib.tamrel_generate_memory(job_text, options_text, ctypes.byref(file), ctypes.byref(length),
                                       ctypes.byref(protocol), ctypes.byref(messages))
    said = (_taken(messages.value) or b"").decode()
    data = _taken(file.value, length.value)
    proto = _taken(protocol.value) or b""
    if code not in (0, 3):
        raise GenerateError(code, said)
    return data, proto, said


def _read(file, encoding, partial):
    """The job and the returned errors of a file (a path, or its bytes)."""
    if isinstance(file, (bytes, bytearray)):
        data = bytes(file)
    else:
        with open(file, "rb") as f:
            data = f.read()
    options = json.dumps({"encoding": encoding} if encoding else {}).encode()
    job, errors, messages = ctypes.c_void_p(), ctypes.c_void_p(), ctypes.c_void_p()
    code = _lib.tamrel_read(data, len(data), options, ctypes.byref(job), ctypes.byref(errors), ctypes.byref(messages))
    said = (_taken(messages.value) or b"").decode()
    job_text, errors_text = _taken(job.value), _taken(errors.value)
    result = json.loads(job_text) if job_text else None
    if code == 2 or (code != 0 and not partial):
        raise ReadError(code, said, result)
    return result, json.loads(errors_text) if errors_text else []


def read(file, encoding=None, partial=False):
    """Reads a transfer file (a path or its bytes; an XML report too) back
    into the job that makes it, as a dict: the frame values, "reports", and
    for a file a receiving office returned, "returned_errors". Raises
    ReadError where a record could not be read back, unless `partial`, which
    returns what was read. `encoding`: "ISO-8859-1", "ISO-8859-15" or
    "UTF-8"; found out when not given."""
    return _read(file, encoding, partial)[0]


def returned_errors(file, encoding=None):
    """The error blocks of a returned file, one dict each: the record and
    report they belong to, the report's keys, the error number and text, and
    where the text names a field, its position and the property behind it."""
    return _read(file, encoding, True)[1]
