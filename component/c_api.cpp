#include "component/c_api.h"

#include <cstdlib>
#include <cstring>
#include <string>

#include "component/call_protocol.h"
#include "core/version.h"

extern "C" char* tamrel_call(const char* request_json) {
    try {
        bool request_error = false;
        std::string response = tamrel::call_line(request_json ? request_json : "", request_error);
        char* out = static_cast<char*>(std::malloc(response.size() + 1));
        if (out) std::memcpy(out, response.c_str(), response.size() + 1);
        return out;
    } catch (...) {
        return nullptr;
    }
}

extern "C" void tamrel_free(char* text) { std::free(text); }

extern "C" const char* tamrel_version(void) { return tamrel::kVersionText; }

extern "C" int tamrel_version_number(void) {
    return TAMREL_VERSION_MAJOR * 10000 + TAMREL_VERSION_MINOR * 100 + TAMREL_VERSION_PATCH;
}
