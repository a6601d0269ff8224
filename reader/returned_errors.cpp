#include "reader/returned_errors.h"

#include "core/frame_layouts.h"
#include "reader/transfer_file.h"

namespace tamrel::checks {
namespace {

const FieldLayout* named(const RecordLayout& record, std::string_view name) {
    for (const FieldLayout& f : record.fields)
        if (f.name == name) return &f;
    return nullptr;
}

}  // namespace

const FieldLayout* error_flag_field(const RecordLayout& record) { return named(record, "error marker"); }
const FieldLayout* error_count_field(const RecordLayout& record) { return named(record, "number of errors"); }

ReturnedLine split_returned(std::u32string_view line, const RecordLayout& layout) {
    ReturnedLine out{line, {}, false, {}};
    std::size_t count = 0;
    if (&layout == &::tamrel::layouts::kVOSZ) {
        // A file rejected as a whole: error blocks after the header.
        if (line.size() <= layout.length) return out;
        count = (line.size() - layout.length) / kDBFE.length;
        if ((line.size() - layout.length) % kDBFE.length != 0) return out;
    } else {
        const FieldLayout* flag = error_flag_field(layout);
        const FieldLayout* number = error_count_field(layout);
        if (!flag || !number || line.size() < number->pos) return out;
        const char32_t f = line[flag->pos - 1u], n = line[number->pos - 1u];
        if (f == U'0' && n == U'0') return out;
        out.returned = true;
        if (n < U'0' || n > U'9') {
            out.problem = "the count of errors (position " + std::to_string(number->pos) + ") is no digit";
            return out;
        }
        count = n - U'0';
        if (line.size() < count * kDBFE.length) {
            out.problem = "the record is shorter than its " + std::to_string(count) + " error blocks";
            return out;
        }
    }
    const std::size_t body = line.size() - count * kDBFE.length;
    for (std::size_t k = 0; k < count; ++k) {
        const std::u32string_view block = line.substr(body + k * kDBFE.length, kDBFE.length);
        if (field_text(block, dbfe_fields::Kennung) != "DBFE") {
            out.problem = "error block " + std::to_string(k + 1) + " at character " +
                          std::to_string(body + k * kDBFE.length + 1) + " is no DBFE";
            out.errors.clear();
            return out;
        }
        out.errors.push_back({trimmed(field_text(block, dbfe_fields::Fehlernummer)),
                              trimmed(field_text(block, dbfe_fields::Fehlertext))});
    }
    out.record = line.substr(0, body);
    out.returned = true;
    return out;
}

}  // namespace tamrel::checks
