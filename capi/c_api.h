/* tamrel's C interface.

   Every function may be called from any number of threads at once: no
   call sees another's data (each has its own clock, log and data-object
   tests, as the request says), and the results are the same as from one
   thread. Each thread keeps the buffers of its calls for the next one, so
   its memory stays as large as its largest request.

   Ownership: every string the library returns through a `char*` or `char**`
   is allocated by the library and belongs to the caller, who frees it with
   tamrel_free (never with free). Strings the caller passes in are only read
   during the call. A NULL result means that memory ran out. */
#ifndef TAMREL_C_API_H
#define TAMREL_C_API_H
#include <stddef.h>

#if defined(_WIN32)
#define TAMREL_API
#else
#define TAMREL_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* One request of the call protocol (docs/call-protocol.md) in, its response
   out, both one JSON object:
     {"class":"clsGenMeldung","method":"GenData","args":{...}}
   The response is {"result":…,"out":{…},"log":[…]} on success,
   {"error":{"number":…,"source":"…","description":"…"},"log":[…]} when the
   method fails as the component would, and {"request_error":"…"} when the
   request itself is not valid (not JSON, an unknown class, method or
   argument). Never NULL unless memory runs out; free with tamrel_free.
   Fastest: UTF-8 without escapes, "args" last, its parameters in the
   method's order (docs/call-protocol.md). */
TAMREL_API char* tamrel_call(const char* request_json);

/* Runs a generate job as `tamrel generate` does (docs/job-format.md).
   `job_json`: the job as JSON text. `options_json`: NULL or a JSON object:
     "output"        the transfer file's path (required)
     "protocol"      the protocol file's path
     "reports"       an NDJSON file of reports in place of the job's
     "folder"        where a relative "reports_file" of the job is
     "encoding"      "ISO-8859-1" (default), "ISO-8859-15" or "UTF-8"
     "crlf", "keep_going", "transliterate"   false by default
     "check"         true by default: the checks before building
     "findings"      an NDJSON file for every finding of the checks
     "log"           an NDJSON file for the log lines of every failed report
   The files are written atomically: all or nothing.
   Returns the exit code of `tamrel generate`: 0 written; 1 a report failed
   and nothing was written; 2 the job or the options are not valid; 3
   written with failed reports left out ("keep_going"); 4 an output could
   not be written. `messages` (may be NULL) receives the messages that
   `tamrel generate` prints, one a line ("tamrel generate: report 3: …");
   free with tamrel_free. */
TAMREL_API int tamrel_generate(const char* job_json, const char* options_json, char** messages);

/* As tamrel_generate, into memory: `*file` receives the transfer file's
   bytes and `*file_length` their number; `protocol` (may be NULL) receives
   the protocol lines when the class has them; "output" and "protocol" of
   the options are not used. On a code other than 0 and 3, `*file` and
   `*protocol` are NULL. Free each with tamrel_free. */
TAMREL_API int tamrel_generate_memory(const char* job_json, const char* options_json, char** file, size_t* file_length,
                                      char** protocol, char** messages);

/* Reads a transfer file (or an XML report) back into the job that makes
   it, as `tamrel read` does (docs/read.md): `file` and `file_length` are
   the file's bytes; `options_json` NULL or {"encoding": "ISO-8859-1",
   "ISO-8859-15" or "UTF-8"} (found out when not given). `*job_json`
   receives the job with its reports, and, for a file returned by a
   receiving office, "returned_errors"; `errors_json` (may be NULL) the
   returned errors alone, a JSON array; `messages` (may be NULL) each record
   that was not read, one a line. Returns 0 read whole; 3 read with records
   skipped (each told in the messages); 2 not a transfer file, or options
   not valid (then `*job_json` and `*errors_json` are NULL). Free each with
   tamrel_free. */
TAMREL_API int tamrel_read(const char* file, size_t file_length, const char* options_json, char** job_json,
                           char** errors_json, char** messages);

/* Frees what the library returned; NULL is ignored. */
TAMREL_API void tamrel_free(char* text);

/* The library's version, "1.0.0"; a static string, not to be freed. */
TAMREL_API const char* tamrel_version(void);

/* The version as a number, major * 10000 + minor * 100 + patch. */
TAMREL_API int tamrel_version_number(void);

#ifdef __cplusplus
}
#endif
#endif
