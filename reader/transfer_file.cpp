#include "reader/transfer_file.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>

#include "checks/numbers.h"
#include "checks/rules.h"
#include "checks/values.h"
#include "core/frame_layouts.h"
#include "core/line_reader.h"
#include "core/printable.h"
#include "reader/field_kinds.h"
#include "reader/field_sources.h"
#include "reader/line_walk.h"
#include "reader/record_layouts.h"
#include "reader/returned_errors.h"

namespace tamrel::checks {
// The characters where ISO-8859-15 differs from ISO-8859-1.
static char32_t latin9(unsigned char c) {
    switch (c) {
        case 0xA4:
            return U'\u20AC';
        case 0xA6:
            return U'\u0160';
        case 0xA8:
            return U'\u0161';
        case 0xB4:
            return U'\u017D';
        case 0xB8:
            return U'\u017E';
        case 0xBC:
            return U'\u0152';
        case 0xBD:
            return U'\u0153';
        case 0xBE:
            return U'\u0178';
        default:
            return c;
    }
}

// UTF-8, else one character a byte, into `out` (its buffer kept from line
// to line). A UTF-8 sequence cut short at the end is read as far as it goes.
void decode(std::string_view line, FileEncoding encoding, std::u32string& out) {
    if (out.size() < line.size()) out.resize(line.size());
    char32_t* o = out.data();
    const auto* p = reinterpret_cast<const unsigned char*>(line.data());
    const auto* const end = p + line.size();
    while (p < end) {
        // A run of ASCII (every character in ISO-8859-1), widened in one loop.
        const unsigned char* run = p;
        if (encoding == FileEncoding::Latin1) {
            run = end;
        } else {
            for (std::uint64_t w; end - run >= 8; run += 8)
                if (std::memcpy(&w, run, 8), (w & 0x8080808080808080ULL) != 0) break;
            while (run < end && *run < 0x80) ++run;
        }
        const std::size_t ascii = static_cast<std::size_t>(run - p);
        for (std::size_t i = 0; i < ascii; ++i) o[i] = p[i];
        o += ascii, p = run;
        if (p == end) break;
        const unsigned char c = *p;
        if (encoding == FileEncoding::Latin9) {
            *o++ = latin9(c), ++p;
            continue;
        }
        const int n = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : 1;
        char32_t cp = c & (0x3F >> n);
        for (int k = 1; k <= n && p + k < end; ++k) cp = (cp << 6) | (p[k] & 0x3F);
        *o++ = cp;
        p += n + 1;
    }
    out.resize(static_cast<std::size_t>(o - out.data()));
}

bool valid_utf8(std::string_view s) {
    for (std::size_t i = 0; i < s.size();) {
        const auto c = static_cast<unsigned char>(s[i]);
        const int n = c < 0x80 ? 0 : (c >> 5) == 6 ? 1 : (c >> 4) == 14 ? 2 : (c >> 3) == 30 ? 3 : -1;
        if (n < 0 || i + static_cast<std::size_t>(n) >= s.size() + (n == 0)) return false;
        for (int k = 1; k <= n; ++k)
            if ((static_cast<unsigned char>(s[i + k]) & 0xC0) != 0x80) return false;
        i += static_cast<std::size_t>(n) + 1;
    }
    return true;
}

std::string trimmed(std::string s) {
    while (!s.empty() && s.back() == ' ') s.pop_back();
    return s;
}

namespace {

// Checks records as they come; what depends on a record being the last is
// settled at the end.
class FileChecker {
public:
    explicit FileChecker(FileCheck& out) : out_(out) {}

    void add(std::u32string_view r) {
        const std::size_t i = out_.records++;
        if (i > 0 && id_ == "NCSZ") finding(i - 1, &kFileFrame);  // a trailer that was not the last record
        id_ = to_utf8(r.substr(0, 4));
        if (i == 0 && id_ != "VOSZ") finding(i, &kFileFirst);
        if (i == 0) dsko_optional_ = dsko_optional(trimmed(to_utf8(r.substr(4, 5))));
        if (i == 1 && id_ != "DSKO" && !dsko_optional_) finding(i, &kFileSecond);
        if ((id_ == "VOSZ" && i != 0) || (id_ == "DSKO" && i != 1)) finding(i, &kFileFrame);
        record(i, r);
        last_.assign(r);
    }

    // One record as if it were the whole file, without the file's rules.
    void alone(std::u32string_view r) {
        out_.records = 1;
        id_ = to_utf8(r.substr(0, 4));
        record(0, r);
    }

    void finish() {
        if (out_.records == 0) return;
        const std::size_t i = out_.records - 1;
        if (out_.records < 2) finding(i, &kFileSecond);
        if (id_ != "NCSZ") {
            finding(i, &kFileLast);
        } else if (last_.size() == layouts::kNCSZ.length) {
            // The count covers every record but VOSZ and NCSZ.
            const FieldLayout& count = layouts::NCSZ::strCount;
            const std::string text = field_text(last_, count);
            if (is_digits(text, count.len) && std::stoul(text) + 2 != out_.records)
                finding(i, &kFileCount, &count, text);
        }
    }

private:
    // `at` places a finding that names no field; `p` is the part of the
    // line the field belongs to.
    void finding(std::size_t i, const Rule* rule, const FieldLayout* f = nullptr, std::string value = {},
                 const FieldLayout* at = nullptr, const Part* p = nullptr) {
        const std::string id = i + 1 == out_.records ? id_ : to_utf8(std::u32string_view(last_).substr(0, 4));
        const FieldLayout* place = f ? f : at;
        out_.findings.push_back({i + 1, id, p ? part_label(*p) : std::string(),
                                 f ? std::string(f->name) : std::string(), place ? place->pos : std::uint16_t{0},
                                 place ? place->len : std::uint16_t{0}, std::move(value), rule});
    }

    void record(std::size_t i, std::u32string_view r) {
        const RecordLayout* layout = find_layout(r);
        if (!layout) {
            finding(i, &kRecordUnknown, nullptr, to_utf8(r.substr(0, 4)));
            return;
        }
        const bool frame = layout == &layouts::kVOSZ || layout == &layouts::kDSKO || layout == &layouts::kNCSZ;
        // A returned record: its error flag and count set, the error blocks
        // they announce after its own blocks (the DBFE of the common
        // principles' data-record descriptions).
        const ReturnedLine returned = split_returned(r, *layout);
        if (returned.problem.empty()) r = returned.record;
        const FieldLayout* flag = returned.returned ? error_flag_field(*layout) : nullptr;
        const FieldLayout* count = returned.returned ? error_count_field(*layout) : nullptr;
        WalkProblem problem;
        const bool fits = walk_line(
            r, *layout,
            [&](const Part& p) {
                for (const FieldLayout& f : p.layout->fields) {
                    if (&f == flag || &f == count) continue;  // a digit, as split_returned read it
                    if (f.kind != FieldKind::An && f.kind != FieldKind::Code)
                        field(i, r, p, f, frame);  // text holds anything
                }
            },
            problem);
        if (!fits) {
            const FieldLayout where{"", static_cast<std::uint16_t>(problem.at + 1), 0, FieldKind::An};
            finding(i, problem.rule, problem.announce, problem.value,
                    problem.announce || problem.at == 0 ? nullptr : &where);
        }
    }

    void field(std::size_t i, std::u32string_view r, const Part& p, const FieldLayout& f, bool frame) {
        const std::u32string_view text = slice(r, p, f);
        const Content content = content_of(*p.layout, f);
        if (content == Content::Free) return;
        const bool basic = text.find_first_not_of(U' ') == std::u32string_view::npos ||
                           text.find_first_not_of(U'0') == std::u32string_view::npos;
        if (content == Content::Reserve && basic) return;
        if (const Rule* rule = fault(text, f)) {
            const bool number = f.kind == FieldKind::Vsnr || f.kind == FieldKind::Bnr;
            finding(i, rule, &f, number ? trimmed(to_utf8(text)) : to_utf8(text), nullptr, &p);
        }
        // The parties: establishment numbers, the same in every frame record.
        if (!frame || (f.name != "strBNRAb" && f.name != "strBNREm")) return;
        const std::string number = trimmed(to_utf8(text));
        std::string& first = f.name == "strBNRAb" ? sender_ : receiver_;
        if (first.empty() && i == 0)
            first = number;
        else if (!first.empty() && number != first)
            finding(i, &kFileParties, &f, number);
    }

    FileCheck& out_;
    std::string id_;       // of the record last added
    std::u32string last_;  // the record last added
    bool dsko_optional_ = false;
    std::string sender_, receiver_;
};

}  // namespace

char32_t latin_char(unsigned char c, FileEncoding encoding) { return encoding == FileEncoding::Latin9 ? latin9(c) : c; }

void read_records(std::istream& in, const std::function<void(std::u32string_view)>& each, FileEncoding encoding) {
    read_record_texts(
        in, [&](const RecordText& r) { each(r.chars); }, encoding);
}

void read_record_texts(std::istream& in, const std::function<void(const RecordText&)>& each, FileEncoding encoding) {
    std::string line;
    std::size_t length = 0;
    // One pass over the lines, each within the bound.
    auto lines = [&](LineReader reader, auto&& take) {
        for (std::size_t number = 1; reader.next(line, length); ++number) {
            if (reader.overlong())
                throw std::runtime_error("record " + std::to_string(number) + ": " +
                                         line_too_long_text(length, kMaxRecordBytes));
            take(number);
        }
        if (in.bad()) throw std::runtime_error("cannot be read");
    };
    auto first_line = [&](std::size_t number) {
        if (number == 1 && line.starts_with("<?xml"))
            throw std::runtime_error("an XML report: fixed-width files only (tamrel read takes the XML report)");
    };
    bool any = false;
    // UTF-8 that was given, not found out, is checked line by line.
    const bool validate = encoding == FileEncoding::Utf8;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> spool(nullptr, &std::fclose);
    if (encoding == FileEncoding::Detect) {
        const bool seekable = in.rdbuf()->pubseekoff(0, std::ios::cur, std::ios::in) != std::streampos(-1);
        if (!seekable) {
            spool.reset(std::tmpfile());
            if (!spool) throw std::runtime_error("no temporary file to read the input twice; give --encoding");
        }
        bool utf8 = true;
        lines(LineReader(in, kMaxRecordBytes), [&](std::size_t number) {
            first_line(number);
            any = true;
            if (utf8 && !valid_utf8(line)) utf8 = false;
            if (spool && (std::fwrite(line.data(), 1, line.size(), spool.get()) != line.size() ||
                          std::fputc('\n', spool.get()) == EOF))
                throw std::runtime_error("the temporary copy of the input cannot be written");
        });
        if (!any) throw std::runtime_error("the file is empty");
        encoding = utf8 ? FileEncoding::Utf8 : FileEncoding::Latin1;
        if (spool) {
            std::rewind(spool.get());
        } else {
            in.clear();
            in.seekg(0);
        }
    }
    std::u32string record;
    auto take = [&](std::size_t number) {
        first_line(number);
        any = true;
        if (validate && !valid_utf8(line)) throw std::runtime_error("record " + std::to_string(number) + ": not UTF-8");
        decode(line, encoding, record);
        each(RecordText{record, line, encoding});
    };
    if (spool)
        lines(LineReader(spool.get(), kMaxRecordBytes), take);
    else
        lines(LineReader(in, kMaxRecordBytes), take);
    if (!any) throw std::runtime_error("the file is empty");
}

std::string to_utf8(std::u32string_view s) { return walk_detail::utf8_of(s); }

std::string field_text(std::u32string_view record, const FieldLayout& f) {
    if (f.pos - 1u >= record.size()) return {};
    return to_utf8(record.substr(f.pos - 1u, f.len));
}

FileCheck check_transfer_file(std::istream& in, FileEncoding encoding) {
    FileCheck out;
    FileChecker checker(out);
    read_records(
        in, [&](std::u32string_view r) { checker.add(r); }, encoding);
    checker.finish();
    return out;
}

std::vector<FileFinding> check_record(std::string_view record) {
    // The library's records are UTF-8 (its texts come as UTF-8).
    thread_local std::u32string chars;
    decode(record, FileEncoding::Utf8, chars);
    FileCheck out;
    FileChecker(out).alone(chars);
    return std::move(out.findings);
}

std::string describe(const FileFinding& f) {
    std::string s = "record " + std::to_string(f.record) + " " + f.id;
    if (!f.part.empty()) s += "/" + f.part;
    if (!f.field.empty())
        s += " " + f.field + " (pos " + std::to_string(f.pos) + "-" + std::to_string(f.pos + f.len - 1) + ")";
    else if (f.pos)
        s += " (character " + std::to_string(f.pos) + ")";
    if (!f.value.empty() || !f.field.empty()) s += " \"" + printable(f.value) + "\"";
    return s + ": " + (f.rule->severity == Severity::Error ? "error " : "warning ") + std::string(f.rule->id) + " " +
           std::string(f.rule->english);
}

}  // namespace tamrel::checks
