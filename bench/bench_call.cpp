// The C interface's call: a DEUEV registration's GenData request (the
// reason-10 report of examples/deuev-registration.json) in, its response
// out, on one thread and on one thread per core at once.
#include <benchmark/benchmark.h>

#include <fstream>
#include <thread>

#include <nlohmann/json.hpp>

#include "capi/c_api.h"

namespace {

// The request as a caller writes it: the keys in the order of the call
// protocol's examples and of the parameter list, or (`sorted`) in the
// order of their names, as a JSON library that keeps its objects sorted
// writes them ("args" before "class").
std::string registration_request(bool sorted = false) {
    const auto job = nlohmann::ordered_json::parse(
        std::ifstream(std::string(TAMREL_SOURCE_DIR) + "/examples/deuev-registration.json"));
    const nlohmann::ordered_json request{{"class", "clsGenMeldung"},
                                         {"method", "GenData"},
                                         {"now", job["now"]},
                                         {"args",
                                          {{"objMeldung", job["reports"][0]},
                                           {"udtDatensatzData", job["udtDatensatzData"]},
                                           {"enmVerfahren", "vmNormal"},
                                           {"datDate", job["datDate"]}}}};
    return sorted ? nlohmann::json(request).dump() : request.dump();
}

void call_over_and_over(benchmark::State& state, const std::string& request) {
    for (auto _ : state) {
        char* response = tamrel_call(request.c_str());
        benchmark::DoNotOptimize(response);
        tamrel_free(response);
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_TamrelCall_Registration(benchmark::State& state) {
    static const std::string request = registration_request();
    call_over_and_over(state, request);
}
BENCHMARK(BM_TamrelCall_Registration);
BENCHMARK(BM_TamrelCall_Registration)
    ->Threads(static_cast<int>(std::max(1u, std::thread::hardware_concurrency())))
    ->UseRealTime();

void BM_TamrelCall_RegistrationSortedKeys(benchmark::State& state) {
    static const std::string request = registration_request(true);
    call_over_and_over(state, request);
}
BENCHMARK(BM_TamrelCall_RegistrationSortedKeys);

}  // namespace
