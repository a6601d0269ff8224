// A list loop of a routine that numbers its statements: the 16-bit counter
// steps from `first` to `last` (stepping past 32767 is the overflow error),
// and the statements of the body keep their own numbers on every pass. Each
// pass numbers its statements from where the loop stands, and after the
// loop the numbering goes on behind the body's `statements`, however many
// passes ran (none included).
#pragma once
#include <cassert>
#include <cstdint>

#include "core/error.h"
#include "core/int16.h"

namespace tamrel {

template <class Body>
void list_loop(int& line, int statements, std::int16_t first, std::int16_t last, Body&& body) {
    const int top = line;
    for (std::int16_t i = first; i <= last; i = add16(i, 1)) {
        line = top;
        body(i);
        assert(line - top <= statements);
    }
    line = top + statements;
}

}  // namespace tamrel
