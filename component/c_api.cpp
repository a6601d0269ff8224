#include "component/c_api.h"

#include <cstdlib>
#include <string>

#include "component/c_text.h"
#include "component/call_protocol.h"
#include "core/version.h"

extern "C" char* tamrel_call(const char* request_json) {
    try {
        bool request_error = false;
        return tamrel::c_text(tamrel::call_line(request_json ? request_json : "", request_error));
    } catch (...) {
        return nullptr;
    }
}

extern "C" void tamrel_free(char* text) { std::free(text); }

extern "C" const char* tamrel_version(void) { return tamrel::kVersionText; }

extern "C" int tamrel_version_number(void) {
    return TAMREL_VERSION_MAJOR * 10000 + TAMREL_VERSION_MINOR * 100 + TAMREL_VERSION_PATCH;
}
