#include "cli/file_commands.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>

#include <nlohmann/json.hpp>

#include "checks/rules.h"
#include "checks/transfer_file.h"

namespace tamrel::cli {
namespace {

// Runs `body` on the opened file; a file that cannot be read or is no
// transfer file is told on standard error (exit code 2).
template <class Body>
int with_file(const std::string& command, const std::string& path, Body&& body) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        std::cerr << "tamrel " << command << ": " << path << ": cannot be read: " << std::strerror(errno) << '\n';
        return 2;
    }
    try {
        return body(in);
    } catch (const std::exception& e) {
        std::cerr << "tamrel " << command << ": " << path << ": " << e.what() << '\n';
        return 2;
    }
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
    return with_file("check", path, [&](std::istream& in) {
        const checks::FileCheck result = checks::check_transfer_file(in);
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
    });
}

namespace {

void show_record(std::size_t number, std::u32string_view r, bool json) {
    const RecordLayout* layout = checks::find_layout(r);
    const std::string id = checks::field_text(r, {"identifier", 1, 4, FieldKind::An});
    auto line = [&](nlohmann::ordered_json j) {
        std::cout << j.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    };
    if (!json) std::cout << "record " << number << " " << id << " (" << r.size() << " characters)\n";
    if (!layout) {
        const FieldLayout whole{"record", 1, static_cast<std::uint16_t>(r.size()), FieldKind::An};
        if (json)
            line({{"record", number}, {"id", id}, {"raw", checks::field_text(r, whole)}});
        else
            std::cout << "  (its layout is not declared yet)\n";
        return;
    }
    for (const FieldLayout& f : layout->fields) {
        const std::string raw = checks::field_text(r, f), value = decoded(raw, f.kind);
        if (json) {
            line({{"record", number},
                  {"id", id},
                  {"field", f.name},
                  {"pos", f.pos},
                  {"len", f.len},
                  {"kind", kind_name(f.kind)},
                  {"raw", raw},
                  {"value", value}});
            continue;
        }
        char head[64];
        std::snprintf(head, sizeof head, "  %3u-%-3u  %-20.*s %-9s ", f.pos, f.pos + f.len - 1u,
                      static_cast<int>(f.name.size()), f.name.data(), kind_name(f.kind));
        std::cout << head << "[" << raw << "]" << (value != raw ? "  " + value : std::string()) << '\n';
    }
}

}  // namespace

int inspect_file(const std::string& path, bool json, std::size_t only) {
    return with_file("inspect", path, [&](std::istream& in) {
        std::size_t number = 0;
        checks::read_records(in, [&](std::u32string_view r) {
            if (!only || ++number == only) show_record(only ? only : ++number, r, json);
        });
        if (only && number < only) {
            std::cerr << "tamrel inspect: --record " << only << ": the file has " << number << " records\n";
            return 2;
        }
        return 0;
    });
}

}  // namespace tamrel::cli
