// A file to read back, arbitrary bytes: tamrel read ends on every input,
// refusing it with its message or giving out reports, each a JSON object
// its class builds again (the proof) into the record as it stands.
#include <cstdint>
#include <sstream>
#include <stdexcept>
#include <string>

#include <nlohmann/json.hpp>

#include "readback/transfer_reading.h"
#include "tests/fuzz/fuzz_invariants.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
    try {
        std::size_t given = 0;
        const tamrel::readback::ReadResult r = tamrel::readback::read_transfer(in, {}, [&](const std::string& report) {
            ++given;
            FUZZ_REQUIRE(nlohmann::json::parse(report, nullptr, false).is_object());
        });
        FUZZ_REQUIRE(given == r.reports);
        FUZZ_REQUIRE(r.job.is_object());
        FUZZ_REQUIRE(r.reports + r.skipped.size() <= r.records + 2);
    } catch (const std::runtime_error&) {
        // no transfer file: refused with its message
    }
    return 0;
}
