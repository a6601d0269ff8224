// The reading of each procedure's data records back into its data object:
// one entry a generator class, found by the identifier of its records.
#pragma once
#include <span>
#include <string>
#include <string_view>

#include "core/layout.h"
#include "readback/report_reading.h"
#include "reader/line_walk.h"

namespace tamrel::readback {

struct ReadReport {
    std::string json;  // the report, as a report of the job format
    RecordFrame frame;
};

struct ProcedureReader {
    std::string_view cls;
    // Reads a record with its blocks (the parts the walk found in it).
    void (*read)(std::u32string_view line, std::span<const checks::Part> parts, ReadReport& out);
};

// The reader of the class whose data records include `record`; nullptr for
// a record no class writes.
const ProcedureReader* reader_for_record(const RecordLayout& record);

}  // namespace tamrel::readback
