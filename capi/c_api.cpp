#include "capi/c_api.h"

#include <cstdlib>
#include <string>

#include "call/call_protocol.h"
#include "capi/c_text.h"
#include "core/version.h"

extern "C" char* tamrel_call(const char* request_json) {
    try {
        // The response is built in the thread's buffer and handed out as one copy.
        thread_local std::string response;
        bool request_error = false;
        tamrel::call_line(request_json ? request_json : "", response, request_error);
        return tamrel::c_text(response);
    } catch (...) {
        return nullptr;
    }
}

extern "C" void tamrel_free(char* text) { std::free(text); }

extern "C" const char* tamrel_version(void) { return tamrel::kVersionText; }

extern "C" int tamrel_version_number(void) {
    return TAMREL_VERSION_MAJOR * 10000 + TAMREL_VERSION_MINOR * 100 + TAMREL_VERSION_PATCH;
}
