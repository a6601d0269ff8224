// A transfer file read back into its job: the example registrations, each
// report read, written as JSON, built again and compared.
#include <benchmark/benchmark.h>

#include <fstream>
#include <istream>
#include <streambuf>
#include <string>

#include <nlohmann/json.hpp>

#include "readback/transfer_reading.h"
#include "run/generate.h"

namespace {

// The example's two registrations, 500 times, as tamrel generate writes them.
std::string registrations() {
    nlohmann::json job =
        nlohmann::json::parse(std::ifstream(std::string(TAMREL_SOURCE_DIR) + "/examples/deuev-registration.json"));
    nlohmann::json reports = nlohmann::json::array();
    for (int i = 0; i < 1000; ++i) {
        nlohmann::json r = job["reports"][static_cast<std::size_t>(i % 2)];
        r["Laufnummer"] = i + 1;
        reports.push_back(r);
    }
    job["reports"] = reports;
    std::string file;
    tamrel::cli::GenerateOptions o;
    o.job = "job";
    o.jobText = job.dump();
    o.outputText = &file;
    tamrel::cli::generate(o, [](const std::string&) {});
    return file;
}

// The file's bytes as a stream, read in place: a string stream would copy
// the whole file for every run, which is no part of reading it. Seekable,
// as a file is, so that the encoding is found out without a spooled copy.
class InPlace : public std::streambuf {
public:
    explicit InPlace(const std::string& s) {
        char* p = const_cast<char*>(s.data());
        setg(p, p, p + s.size());
    }

protected:
    pos_type seekoff(off_type off, std::ios_base::seekdir dir, std::ios_base::openmode) override {
        const off_type base = dir == std::ios_base::beg   ? 0
                              : dir == std::ios_base::cur ? gptr() - eback()
                                                          : egptr() - eback();
        return seekpos(pos_type(base + off), std::ios_base::in);
    }
    pos_type seekpos(pos_type pos, std::ios_base::openmode) override {
        if (pos < 0 || pos > egptr() - eback()) return pos_type(off_type(-1));
        setg(eback(), eback() + pos, egptr());
        return pos;
    }
};

void BM_ReadBack_Registrations(benchmark::State& state) {
    const std::string file = registrations();
    std::size_t reports = 0;
    for (auto _ : state) {
        InPlace bytes(file);
        std::istream in(&bytes);
        const auto r = tamrel::readback::read_transfer(in, {}, [](const std::string&) {});
        reports += r.reports;
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * file.size()));
    state.counters["reports/s"] = benchmark::Counter(static_cast<double>(reports), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_ReadBack_Registrations)->Unit(benchmark::kMillisecond);

}  // namespace
