// Every record layout a transfer file may hold: the frame records and the
// data records of every procedure, each with its blocks.
#pragma once
#include <span>
#include <string_view>

#include "core/layout.h"

namespace tamrel::checks {

// The frame records VOSZ, DSKO, NCSZ, then the data records.
std::span<const RecordLayout* const> record_layouts();

// The layout of the record that `record` begins with, or nullptr.
const RecordLayout* find_layout(std::u32string_view record);

}  // namespace tamrel::checks
