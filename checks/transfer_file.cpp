#include "checks/transfer_file.h"

#include <stdexcept>

#include "checks/numbers.h"
#include "checks/rules.h"
#include "checks/values.h"
#include "core/frame_layouts.h"

namespace tamrel::checks {
namespace {

// UTF-8 when the whole file is, else one character a byte.
void decode(std::string_view line, bool utf8, std::u32string& out) {
    out.clear();
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

// Checks records as they come; what depends on a record being the last is
// settled at the end.
class FileChecker {
public:
    explicit FileChecker(FileCheck& out) : out_(out) {}

    void add(std::u32string_view r) {
        const std::size_t i = out_.records++;
        if (i > 0 && id_ == "NCSZ") finding(i - 1, &kFileFrame);  // a trailer that was not the last record
        id_ = utf8(r.substr(0, 4));
        if (i == 0 && id_ != "VOSZ") finding(i, &kFileFirst);
        if (i == 1 && id_ != "DSKO") finding(i, &kFileSecond);
        if ((id_ == "VOSZ" && i != 0) || (id_ == "DSKO" && i != 1)) finding(i, &kFileFrame);
        record(i, r);
        last_.assign(r);
    }

    void finish() {
        if (out_.records == 0) return;
        const std::size_t i = out_.records - 1;
        if (out_.records < 2) finding(i, &kFileSecond);
        if (id_ != "NCSZ") {
            finding(i, &kFileLast);
        } else if (last_.size() == layouts::kNCSZ.length) {
            // The count covers every record but VOSZ and NCSZ.
            const FieldLayout& count = layouts::kNCSZ.fields[6];
            const std::string text = field_text(last_, count);
            if (is_digits(text, 8) && std::stoul(text) + 2 != out_.records) finding(i, &kFileCount, &count, text);
        }
    }

private:
    void finding(std::size_t i, const Rule* rule, const FieldLayout* f = nullptr, std::string value = {}) {
        const std::string id = i + 1 == out_.records ? id_ : utf8(std::u32string_view(last_).substr(0, 4));
        out_.findings.push_back({i + 1, id, f ? std::string(f->name) : std::string(), f ? f->pos : std::uint16_t{0},
                                 f ? f->len : std::uint16_t{0}, std::move(value), rule});
    }

    void record(std::size_t i, std::u32string_view r) {
        const RecordLayout* layout = find_layout(r);
        if (!layout) {
            ++out_.undeclared;
            return;
        }
        if (r.size() != layout->length) {
            finding(i, &kRecordLength, nullptr,
                    std::to_string(r.size()) + " instead of " + std::to_string(layout->length));
            return;
        }
        for (const FieldLayout& f : layout->fields) field(i, r, f);
    }

    void field(std::size_t i, std::u32string_view r, const FieldLayout& f) {
        const std::string text = field_text(r, f);
        switch (f.kind) {
            case FieldKind::Literal:
                if (text != f.literal) finding(i, &kFieldLiteral, &f, text);
                break;
            case FieldKind::N:
                if (!is_digits(text, f.len)) finding(i, &kDigits, &f, text);
                break;
            case FieldKind::Date:
                if (!is_date(text)) finding(i, &kDate, &f, text);
                break;
            case FieldKind::DateTime:
                if (!is_digits(text, 14) || !is_date(text.substr(0, 8)) || text.substr(8, 2) > "23" ||
                    text.substr(10, 2) > "59" || text.substr(12, 2) > "59")
                    finding(i, &kDateTime, &f, text);
                break;
            case FieldKind::Code:
            case FieldKind::An:
                break;
        }
        // The parties: establishment numbers, the same in every frame record.
        if (f.name != "strBNRAb" && f.name != "strBNREm") return;
        const std::string number = trimmed(text);
        if (const Rule* rule = betriebsnummer_fault(number)) finding(i, rule, &f, number);
        std::string& first = f.name == "strBNRAb" ? sender_ : receiver_;
        if (first.empty() && i == 0)
            first = number;
        else if (!first.empty() && number != first)
            finding(i, &kFileParties, &f, number);
    }

    FileCheck& out_;
    std::string id_;       // of the record last added
    std::u32string last_;  // the record last added
    std::string sender_, receiver_;
};

}  // namespace

void read_records(std::istream& in, const std::function<void(std::u32string_view)>& each) {
    std::string line;
    auto lines = [&](auto&& take) {
        in.clear();
        in.seekg(0);
        while (std::getline(in, line)) {
            if (!line.empty() && line.back() == '\r') line.pop_back();
            take(line);
        }
    };
    bool utf8 = true, any = false, xml = false;
    lines([&](const std::string& l) {
        if (!any) xml = l.starts_with("<?xml");
        any = true;
        if (utf8 && !valid_utf8(l)) utf8 = false;
    });
    if (!any) throw std::runtime_error("the file is empty");
    if (xml) throw std::runtime_error("an XML report: only fixed-width files are read");
    std::u32string record;
    lines([&](const std::string& l) {
        decode(l, utf8, record);
        each(record);
    });
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

FileCheck check_transfer_file(std::istream& in) {
    FileCheck out;
    FileChecker checker(out);
    read_records(in, [&](std::u32string_view r) { checker.add(r); });
    checker.finish();
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
