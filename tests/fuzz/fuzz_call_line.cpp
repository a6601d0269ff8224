// One request line of the call protocol, arbitrary bytes: the answer is one
// JSON object holding a result, an error with a documented number and its
// log, or a request error.
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "call/call_protocol.h"
#include "tests/fuzz/fuzz_invariants.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view line(reinterpret_cast<const char*>(data), size);
    bool request_error = false;
    const std::string response = tamrel::call_line(line, request_error);
    const auto j = nlohmann::json::parse(response);
    FUZZ_REQUIRE(j.is_object());
    FUZZ_REQUIRE(j.contains("result") + j.contains("error") + j.contains("request_error") == 1);
    FUZZ_REQUIRE(request_error == j.contains("request_error"));
    if (j.contains("error")) {
        FUZZ_REQUIRE(tamrel::is_library_error(j["error"]["number"].get<std::int32_t>()));
        FUZZ_REQUIRE(!j["log"].empty());
        for (const auto& l : j["log"]) FUZZ_REQUIRE(l.get<std::string>().starts_with("Fehler "));
    }
    if (j.contains("result")) FUZZ_REQUIRE(j["log"].empty());
    return 0;
}
