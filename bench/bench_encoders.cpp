// Encoders, frame records and protocol lines.
#include <benchmark/benchmark.h>

#include "core/amounts.h"
#include "core/date_fields.h"
#include "core/frames.h"
#include "core/text_fields.h"
#include "protocol/proto_fields.h"

using namespace tamrel;

static void BM_AppendAn(benchmark::State& state) {
    std::string out;
    bool filled = false;
    for (auto _ : state) {
        out.clear();
        mlGen::AppendAn(out,
                        "M\xC3\xBC"
                        "ller-L\xC3\xBC"
                        "denscheid",
                        30, filled);
        benchmark::DoNotOptimize(out.data());
    }
}
BENCHMARK(BM_AppendAn);

static void BM_AppendN(benchmark::State& state) {
    std::string out;
    bool filled = false;
    for (auto _ : state) {
        out.clear();
        mlGen::AppendN(out, "20240301", 8, filled);
        benchmark::DoNotOptimize(out.data());
    }
}
BENCHMARK(BM_AppendN);

static void BM_AppendPB(benchmark::State& state) {
    std::string out;
    bool filled = false;
    for (auto _ : state) {
        out.clear();
        mlGen::AppendPB(out, "1.234,56", 6, 2, filled);
        benchmark::DoNotOptimize(out.data());
    }
}
BENCHMARK(BM_AppendPB);

static void BM_AppendBG(benchmark::State& state) {
    std::string out;
    bool filled = false;
    for (auto _ : state) {
        out.clear();
        mlGen::AppendBG(out, "-12,5", 9, 2, filled);
        benchmark::DoNotOptimize(out.data());
    }
}
BENCHMARK(BM_AppendBG);

static void BM_GetCurrDate(benchmark::State& state) {
    const Date d{2024, 3, 1, 10, 11, 12};
    std::string out;
    for (auto _ : state) {
        out.clear();
        for (std::string_view piece : mlGlobal::CurrDate("", 1, d).pieces()) out.append(piece);
        benchmark::DoNotOptimize(out.data());
    }
}
BENCHMARK(BM_GetCurrDate);

static void BM_Frames(benchmark::State& state) {
    const Date d{2024, 3, 1, 10, 11, 12};
    DSKOData dsko{"98765432", "12345678", "1",      "TAMREL1", "MOD",  "Firma", "", "",      "Weg",
                  "1",        "10115",    "Berlin", "W",       "Name", "030",   "", "a@b.de"};
    for (auto _ : state) {
        std::string datum = "20240301";
        benchmark::DoNotOptimize(mlGen::GenVOSZ("AGDEU", "98765432", "12345678", "1", "Firma", datum, d, "01"));
        benchmark::DoNotOptimize(mlGen::GenDSKO(dsko, "DEUEV", d));
        benchmark::DoNotOptimize(mlGen::GenNCSZ("AGDEU", "98765432", "12345678", "1", "1000", d, "01"));
    }
}
BENCHMARK(BM_Frames);

static void BM_ProtocolLine(benchmark::State& state) {
    for (auto _ : state) {
        proto::Line l;
        l.q("10").raw("1").q("65170839J003").q("98765432").q("P-0001").q("M\xC3\xBCller").q("J\xC3\xBCrgen");
        l.raw("19830917").amount("+1234.50");
        benchmark::DoNotOptimize(l.finish(false, ""));
    }
}
BENCHMARK(BM_ProtocolLine);
