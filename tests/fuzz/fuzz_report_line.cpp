// One report line of tamrel generate, arbitrary bytes: the fast scanner of
// the report runner must make of it exactly what simdjson's DOM makes of
// it, the same record and protocol line or the same error, whatever the
// runner read before.
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "call/call_protocol.h"
#include "call/report_runner.h"
#include "tests/fuzz/fuzz_invariants.h"
#include "tests/runner_outcome.h"

namespace {

using namespace tamrel;

// The first byte of an input chooses the class, in this order.
constexpr const char* kClasses[] = {"clsGenMeldung",  "clsGenBeitrNachw",       "clsGenBeitrErh",     "clsGenErst",
                                    "clsGenZahl",     "clsGenBetrieb",          "clsGenArbeitsBesch", "clsGenEntgelt",
                                    "clsGenAbfrVers", "clsGenAbfrStammdatenUV", "clsGenLohnnachweis", "clsGenAsyl"};
constexpr std::size_t kClassCount = std::size(kClasses);

struct Runners {
    nlohmann::json now = "2024-03-01T10:11:12";
    CallSession session{&now, nullptr};
    std::unique_ptr<ReportRunner> runners[kClassCount];
    Runners() {
        const RunnerSettings settings{&session.host(), {}, 0, {}};
        for (std::size_t i = 0; i < kClassCount; ++i) runners[i] = make_runner(kClasses[i], settings);
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Runners all;
    if (size == 0) return 0;
    ReportRunner& runner = *all.runners[data[0] % kClassCount];
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    const auto library_error = [](const Error& e) { FUZZ_REQUIRE(is_library_error(e.number())); };
    const std::string reference = testing::outcome(
        runner, [&] { runner.read_text_reference(text); }, library_error);
    const std::string scanned = testing::outcome(runner, [&] { runner.read_text(text); });
    if (scanned != reference) {
        std::fprintf(stderr, "scanned:   %s\nreference: %s\n", scanned.c_str(), reference.c_str());
        FUZZ_REQUIRE(scanned == reference);
    }
    return 0;
}
