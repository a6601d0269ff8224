// The reading of each procedure's data records back into its data object:
// one entry a generator class, found by the identifier of its records.
#pragma once
#include <span>
#include <string>
#include <string_view>

#include "call/report_runner.h"
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
    // Reads a record with its blocks (the parts the walk found in it) into
    // the data object of `into`, which then builds it without the report's
    // JSON in between; without a runner (or one of another class), into an
    // object of its own. True when it read into the runner's object.
    // `file_created` is the file's time (empty: the record's own).
    bool (*read)(const LineText& line, std::span<const checks::Part> parts, std::string_view file_created,
                 ReportRunner* into, ReadReport& out);
};

// A record made at another time than the file (`file_created`, the time of
// the communication record or the first data record) has the time as its
// own: the value for the property that the record's time stamp names;
// empty for a record of the file's time.
std::string own_time(const RecordFrame& frame, std::string_view file_created);

// The reader of the class whose data records include `record`; nullptr for
// a record no class writes.
const ProcedureReader* reader_for_record(const RecordLayout& record);

}  // namespace tamrel::readback
