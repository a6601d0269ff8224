// What every fuzzer checks of every answer: an invariant that does not hold
// ends the run with the offending input saved by libFuzzer.
#pragma once
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "core/error.h"

#define FUZZ_REQUIRE(cond)                                                                     \
    do {                                                                                       \
        if (!(cond)) {                                                                         \
            std::fprintf(stderr, "invariant failed: %s (%s:%d)\n", #cond, __FILE__, __LINE__); \
            std::abort();                                                                      \
        }                                                                                      \
    } while (0)
