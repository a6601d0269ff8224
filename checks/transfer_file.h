// A transfer file read back record by record and checked: the frame (VOSZ
// first, DSKO second, NCSZ last, its count, the same sender and receiver
// throughout), each record's length and fields where its layout is
// declared, and the numbers and dates those fields hold.
#pragma once
#include <cstddef>
#include <functional>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

#include "checks/finding.h"
#include "checks/record_layouts.h"
#include "core/layout.h"

namespace tamrel::checks {

// Reads the file's records one at a time as characters (UTF-8 decoded when
// the whole file is UTF-8, else ISO-8859-1/15 byte for byte), without their
// line endings (LF or CR LF): two passes over the stream, memory for one
// record. Throws std::runtime_error for a file that is no fixed-width
// transfer file.
void read_records(std::istream& in, const std::function<void(std::u32string_view)>& each);

// A field's characters, as UTF-8.
std::string field_text(std::u32string_view record, const FieldLayout& f);
// Characters as UTF-8.
std::string to_utf8(std::u32string_view s);

struct FileFinding {
    std::size_t record;  // 1-based
    std::string id;      // the record's identifier
    std::string part;    // the block or entry of the line ("DBME", "DBSE 2"), empty for the record
    std::string field;   // empty: the record as a whole
    std::uint16_t pos = 0, len = 0;
    std::string value;
    const Rule* rule;
};

struct FileCheck {
    std::size_t records = 0;
    std::vector<FileFinding> findings;
};

FileCheck check_transfer_file(std::istream& in);

// "record 3 DSME/DBME Entgelt (pos 26-31) "0-5400": error DIGITS expected digits …"
std::string describe(const FileFinding& f);

}  // namespace tamrel::checks
