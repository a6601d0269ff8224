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
#include "core/layout.h"
#include "reader/record_layouts.h"

namespace tamrel::checks {

// The longest record line read: far above the longest record of any
// layout (a few thousand characters), so that only a file that is no
// transfer file meets it.
inline constexpr std::size_t kMaxRecordBytes = std::size_t{1} << 20;

// How a file's bytes are read as characters: found out (UTF-8 when the
// whole file is, else ISO-8859-1), or as given.
enum class FileEncoding { Detect, Latin1, Latin9, Utf8 };

// Reads the file's records one at a time as characters, without their line
// endings (LF or CR LF): memory for one record, whatever the input. Finding
// out the encoding takes two passes; a stream that cannot be read twice
// (standard input, a pipe) is kept in an anonymous temporary file for the
// second. Throws std::runtime_error for a file that is no fixed-width
// transfer file, and for a line longer than kMaxRecordBytes (the reading
// stops there: an endless line is never read to its end).
void read_records(std::istream& in, const std::function<void(std::u32string_view)>& each,
                  FileEncoding encoding = FileEncoding::Detect);

// A record as read: its characters, and the bytes they were read from in
// the encoding the file was read in (never Detect).
struct RecordText {
    std::u32string_view chars;
    std::string_view bytes;
    FileEncoding encoding;
};
// As read_records, with each record's bytes beside its characters.
void read_record_texts(std::istream& in, const std::function<void(const RecordText&)>& each,
                       FileEncoding encoding = FileEncoding::Detect);

// Bytes read as characters: UTF-8, ISO-8859-1 or ISO-8859-15, into `out`
// (its buffer kept from call to call).
void decode(std::string_view bytes, FileEncoding encoding, std::u32string& out);
// The character of a byte of 0x80 or above in ISO-8859-1 or ISO-8859-15.
char32_t latin_char(unsigned char c, FileEncoding encoding);
// Whether the bytes are UTF-8 throughout.
bool valid_utf8(std::string_view s);

// The text without its trailing blanks.
std::string trimmed(std::string s);

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

FileCheck check_transfer_file(std::istream& in, FileEncoding encoding = FileEncoding::Detect);

// What check_transfer_file reports for one record (UTF-8) on its own: its
// layout, its blocks and the kinds and numbers of its fields, apart from
// the rules of its place in the file. Nothing is allocated for a clean
// record.
std::vector<FileFinding> check_record(std::string_view record);

// "record 3 DSME/DBME Entgelt (pos 26-31) "0-5400": error DIGITS expected digits …"
std::string describe(const FileFinding& f);

}  // namespace tamrel::checks
