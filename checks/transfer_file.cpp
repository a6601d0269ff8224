#include "checks/transfer_file.h"

#include <stdexcept>

#include "checks/numbers.h"
#include "checks/rules.h"
#include "checks/values.h"
#include "core/frame_layouts.h"

namespace tamrel::checks {
namespace {

// UTF-8 when the whole file is, else one character a byte.
std::u32string decode(std::string_view line, bool utf8) {
    std::u32string out;
    out.reserve(line.size());
    for (std::size_t i = 0; i < line.size();) {
        const auto c = static_cast<unsigned char>(line[i]);
        if (!utf8 || c < 0x80) {
            out += c, ++i;
            continue;
        }
        const int n = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : 1;
        char32_t cp = c & (0x3F >> n);
        for (int k = 1; k <= n; ++k) cp = (cp << 6) | (static_cast<unsigned char>(line[i + k]) & 0x3F);
        out += cp, i += static_cast<std::size_t>(n) + 1;
    }
    return out;
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

std::string utf8(std::u32string_view s) {
    std::string out;
    for (char32_t c : s) {
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else if (c < 0x800) {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            out += static_cast<char>(0xE0 | (c >> 12));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            out += static_cast<char>(0xF0 | (c >> 18));
            out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

const RecordLayout* const kLayouts[] = {&layouts::kVOSZ, &layouts::kDSKO, &layouts::kNCSZ};

std::string trimmed(std::string s) {
    while (!s.empty() && s.back() == ' ') s.pop_back();
    return s;
}

class FileChecker {
public:
    FileChecker(const std::vector<std::u32string>& records, FileCheck& out) : records_(records), out_(out) {}

    void run() {
        out_.records = records_.size();
        if (records_.empty()) return;
        const std::u32string_view first = records_.front(), last = records_.back();
        if (id(first) != "VOSZ") add(0, &kFileFirst);
        if (records_.size() < 2 || id(records_[1]) != "DSKO")
            add(std::min<std::size_t>(1, records_.size() - 1), &kFileSecond);
        if (id(last) != "NCSZ") add(records_.size() - 1, &kFileLast);
        for (std::size_t i = 0; i < records_.size(); ++i) record(i);
        if (id(last) == "NCSZ" && last.size() == layouts::kNCSZ.length) {
            // The count covers every record but VOSZ and NCSZ.
            const FieldLayout& count = layouts::kNCSZ.fields[6];
            const std::string text = field_text(last, count);
            if (is_digits(text, 8) && std::stoul(text) != records_.size() - 2)
                add(records_.size() - 1, &kFileCount, &count, text);
        }
    }

private:
    static std::string id(std::u32string_view r) { return utf8(r.substr(0, 4)); }

    void add(std::size_t i, const Rule* rule, const FieldLayout* f = nullptr, std::string value = {}) {
        out_.findings.push_back({i + 1, id(records_[i]), f ? std::string(f->name) : std::string(),
                                 f ? f->pos : std::uint16_t{0}, f ? f->len : std::uint16_t{0}, std::move(value), rule});
    }

    void record(std::size_t i) {
        const std::u32string_view r = records_[i];
        const std::string rid = id(r);
        const bool frame = rid == "VOSZ" || rid == "DSKO" || rid == "NCSZ";
        const bool in_place =
            (rid == "VOSZ" && i == 0) || (rid == "DSKO" && i == 1) || (rid == "NCSZ" && i == records_.size() - 1);
        if (frame && !in_place) add(i, &kFileFrame);
        const RecordLayout* layout = find_layout(r);
        if (!layout) {
            ++out_.undeclared;
            return;
        }
        if (r.size() != layout->length) {
            add(i, &kRecordLength, nullptr, std::to_string(r.size()) + " instead of " + std::to_string(layout->length));
            return;
        }
        for (const FieldLayout& f : layout->fields) field(i, f);
    }

    void field(std::size_t i, const FieldLayout& f) {
        const std::string text = field_text(records_[i], f);
        switch (f.kind) {
            case FieldKind::Literal:
                if (text != f.literal) add(i, &kFieldLiteral, &f, text);
                break;
            case FieldKind::N:
                if (!is_digits(text, f.len)) add(i, &kDigits, &f, text);
                break;
            case FieldKind::Date:
                if (!is_date(text)) add(i, &kDate, &f, text);
                break;
            case FieldKind::DateTime:
                if (!is_digits(text, 14) || !is_date(text.substr(0, 8)) || text.substr(8, 2) > "23" ||
                    text.substr(10, 2) > "59" || text.substr(12, 2) > "59")
                    add(i, &kDateTime, &f, text);
                break;
            case FieldKind::Code:
            case FieldKind::An:
                break;
        }
        // The parties: establishment numbers, the same in every frame record.
        if (f.name != "strBNRAb" && f.name != "strBNREm") return;
        const std::string number = trimmed(text);
        if (const Rule* r = betriebsnummer_fault(number)) add(i, r, &f, number);
        std::string& first = f.name == "strBNRAb" ? sender_ : receiver_;
        if (first.empty() && i == 0)
            first = number;
        else if (!first.empty() && number != first)
            add(i, &kFileParties, &f, number);
    }

    const std::vector<std::u32string>& records_;
    FileCheck& out_;
    std::string sender_, receiver_;
};

}  // namespace

std::vector<std::u32string> transfer_records(std::string_view bytes) {
    if (bytes.empty()) throw std::runtime_error("the file is empty");
    if (bytes.starts_with("<?xml")) throw std::runtime_error("an XML report: only fixed-width files are read");
    const bool utf8 = valid_utf8(bytes);
    std::vector<std::u32string> records;
    while (!bytes.empty()) {
        std::size_t end = bytes.find('\n');
        std::string_view line = bytes.substr(0, end);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        records.push_back(decode(line, utf8));
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    }
    return records;
}

const RecordLayout* find_layout(std::u32string_view record) {
    for (const RecordLayout* l : kLayouts)
        if (record.size() >= 4 && utf8(record.substr(0, 4)) == l->id) return l;
    return nullptr;
}

std::string field_text(std::u32string_view record, const FieldLayout& f) {
    if (f.pos - 1u >= record.size()) return {};
    return utf8(record.substr(f.pos - 1u, f.len));
}

FileCheck check_transfer_file(const std::vector<std::u32string>& records) {
    FileCheck out;
    FileChecker(records, out).run();
    return out;
}

std::string describe(const FileFinding& f) {
    std::string s = "record " + std::to_string(f.record) + " " + f.id;
    if (!f.field.empty())
        s += " " + f.field + " (pos " + std::to_string(f.pos) + "-" + std::to_string(f.pos + f.len - 1) + ")";
    if (!f.value.empty() || !f.field.empty()) s += " \"" + f.value + "\"";
    return s + ": " + (f.rule->severity == Severity::Error ? "error " : "warning ") + std::string(f.rule->id) + " " +
           std::string(f.rule->english);
}

}  // namespace tamrel::checks
