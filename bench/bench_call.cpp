// The C interface's call: a DEUEV registration's GenData request (the
// reason-10 report of examples/deuev-registration.json) in, its response
// out, on one thread and on one thread per core at once.
#include <benchmark/benchmark.h>

#include <fstream>
#include <thread>

#include <nlohmann/json.hpp>

#include "component/c_api.h"

namespace {

std::string registration_request() {
    const auto job =
        nlohmann::json::parse(std::ifstream(std::string(TAMREL_SOURCE_DIR) + "/examples/deuev-registration.json"));
    return nlohmann::json{{"class", "clsGenMeldung"},
                          {"method", "GenData"},
                          {"now", job["now"]},
                          {"args",
                           {{"objMeldung", job["reports"][0]},
                            {"udtDatensatzData", job["udtDatensatzData"]},
                            {"enmVerfahren", "vmNormal"},
                            {"datDate", job["datDate"]}}}}
        .dump();
}

void BM_TamrelCall_Registration(benchmark::State& state) {
    static const std::string request = registration_request();
    for (auto _ : state) {
        char* response = tamrel_call(request.c_str());
        benchmark::DoNotOptimize(response);
        tamrel_free(response);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_TamrelCall_Registration);
BENCHMARK(BM_TamrelCall_Registration)
    ->Threads(static_cast<int>(std::max(1u, std::thread::hardware_concurrency())))
    ->UseRealTime();

}  // namespace
