#include "cli/file_commands.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>

#include <nlohmann/json.hpp>

#include "checks/rules.h"
#include "checks/transfer_file.h"

namespace tamrel::cli {
namespace {

// The file's records, or a message on standard error and nullopt.
bool read_records(const std::string& command, const std::string& path, std::vector<std::u32string>& records) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        std::cerr << "tamrel " << command << ": " << path << ": cannot be read: " << std::strerror(errno) << '\n';
        return false;
    }
    std::ostringstream bytes;
    bytes << in.rdbuf();
    try {
        records = checks::transfer_records(bytes.str());
    } catch (const std::exception& e) {
        std::cerr << "tamrel " << command << ": " << path << ": " << e.what() << '\n';
        return false;
    }
    return true;
}

const char* kind_name(FieldKind k) {
    switch (k) {
        case FieldKind::Literal:
            return "fixed";
        case FieldKind::Code:
            return "code";
        case FieldKind::An:
            return "text";
        case FieldKind::N:
            return "digits";
        case FieldKind::Date:
            return "date";
        case FieldKind::DateTime:
            return "date-time";
    }
    return "";
}

// What a field means, beyond its characters: text without its padding,
// digits without their leading zeros, dates as YYYY-MM-DD.
std::string decoded(const std::string& raw, FieldKind k) {
    std::string s = raw;
    if (k == FieldKind::An || k == FieldKind::Code) {
        while (!s.empty() && s.back() == ' ') s.pop_back();
    } else if (k == FieldKind::N) {
        const std::size_t first = s.find_first_not_of('0');
        s = first == std::string::npos ? (s.empty() ? s : "0") : s.substr(first);
    } else if ((k == FieldKind::Date || k == FieldKind::DateTime) && s.size() >= 8) {
        std::string d = s.substr(0, 4) + "-" + s.substr(4, 2) + "-" + s.substr(6, 2);
        if (s.size() == 14) d += "T" + s.substr(8, 2) + ":" + s.substr(10, 2) + ":" + s.substr(12, 2);
        s = d;
    }
    return s;
}

}  // namespace

int check_file(const std::string& path) {
    std::vector<std::u32string> records;
    if (!read_records("check", path, records)) return 2;
    const checks::FileCheck result = checks::check_transfer_file(records);
    std::size_t errors = 0, warnings = 0;
    for (const checks::FileFinding& f : result.findings) {
        std::cout << checks::describe(f) << '\n';
        ++(f.rule->severity == checks::Severity::Error ? errors : warnings);
    }
    std::cout << path << ": " << result.records << " records, " << errors << " errors, " << warnings << " warnings";
    if (result.undeclared)
        std::cout << "; " << result.undeclared
                  << " records checked for their place only (their layout is not declared yet)";
    std::cout << '\n';
    return errors ? 1 : 0;
}

int inspect_file(const std::string& path, bool json, std::size_t only) {
    std::vector<std::u32string> records;
    if (!read_records("inspect", path, records)) return 2;
    if (only > records.size()) {
        std::cerr << "tamrel inspect: --record " << only << ": the file has " << records.size() << " records\n";
        return 2;
    }
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (only && i + 1 != only) continue;
        const std::u32string& r = records[i];
        const RecordLayout* layout = checks::find_layout(r);
        const FieldLayout whole{"record", 1, static_cast<std::uint16_t>(r.size()), FieldKind::An};
        const std::string id = checks::field_text(r, {"identifier", 1, 4, FieldKind::An});
        if (!json) std::cout << "record " << i + 1 << " " << id << " (" << r.size() << " characters)\n";
        if (!layout) {
            if (json) {
                nlohmann::ordered_json j = {{"record", i + 1}, {"id", id}, {"raw", checks::field_text(r, whole)}};
                std::cout << j.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
            } else {
                std::cout << "  (its layout is not declared yet)\n";
            }
            continue;
        }
        for (const FieldLayout& f : layout->fields) {
            const std::string raw = checks::field_text(r, f), value = decoded(raw, f.kind);
            if (json) {
                nlohmann::ordered_json j = {{"record", i + 1}, {"id", id},      {"field", f.name},
                                            {"pos", f.pos},    {"len", f.len},  {"kind", kind_name(f.kind)},
                                            {"raw", raw},      {"value", value}};
                std::cout << j.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
            } else {
                char positions[16];
                std::snprintf(positions, sizeof positions, "%3u-%-3u", f.pos, f.pos + f.len - 1u);
                std::cout << "  " << positions << "  " << f.name
                          << std::string(f.name.size() < 20 ? 20 - f.name.size() : 1, ' ') << kind_name(f.kind)
                          << std::string(10 - std::strlen(kind_name(f.kind)), ' ') << "[" << raw << "]"
                          << (value != raw ? "  " + value : std::string()) << '\n';
            }
        }
    }
    return 0;
}

}  // namespace tamrel::cli
