#include "cli/file_commands.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>

#include <nlohmann/json.hpp>

#include "checks/field_kinds.h"
#include "checks/line_walk.h"
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

}  // namespace

int check_file(const std::string& path) {
    return with_file("check", path, [&](std::istream& in) {
        const checks::FileCheck result = checks::check_transfer_file(in);
        std::size_t errors = 0, warnings = 0;
        for (const checks::FileFinding& f : result.findings) {
            std::cout << checks::describe(f) << '\n';
            ++(f.rule->severity == checks::Severity::Error ? errors : warnings);
        }
        std::cout << path << ": " << result.records << " records, " << errors << " errors, " << warnings
                  << " warnings\n";
        return errors ? 1 : 0;
    });
}

namespace {

void print_json(const nlohmann::ordered_json& j) {
    std::cout << j.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
}

// One part of a record line (the record, a block, an entry), field by field.
void show_part(std::size_t number, const std::string& id, std::u32string_view r, const checks::Part& p, bool json) {
    const std::string label = checks::part_label(p);
    if (!json && !label.empty()) std::cout << " " << label << "\n";
    for (const FieldLayout& f : p.layout->fields) {
        const std::string raw = checks::to_utf8(checks::slice(r, p, f)), value = checks::decoded(raw, f);
        if (json) {
            nlohmann::ordered_json j = {{"record", number}, {"id", id}};
            if (!label.empty()) j["part"] = label;
            j.update(nlohmann::ordered_json{{"field", f.name},
                                            {"pos", f.pos},
                                            {"len", f.len},
                                            {"kind", checks::kind_name(f.kind)},
                                            {"raw", raw},
                                            {"value", value}});
            print_json(j);
            continue;
        }
        char head[96];
        std::snprintf(head, sizeof head, "  %3u-%-3u  %-40.*s %-9s ", f.pos, f.pos + f.len - 1u,
                      static_cast<int>(f.name.size()), f.name.data(), checks::kind_name(f.kind));
        std::cout << head << "[" << raw << "]" << (value != raw && !value.empty() ? "  " + value : std::string())
                  << '\n';
    }
}

void show_record(std::size_t number, std::u32string_view r, bool json) {
    const RecordLayout* layout = checks::find_layout(r);
    const std::string id = checks::to_utf8(r.substr(0, 4));
    if (!json) std::cout << "record " << number << " " << id << " (" << r.size() << " characters)\n";
    if (!layout) {
        if (json)
            print_json({{"record", number}, {"id", id}, {"raw", checks::to_utf8(r)}});
        else
            std::cout << "  (not a record of a known layout)\n";
        return;
    }
    checks::WalkProblem problem;
    if (!checks::walk_line(
            r, *layout, [&](const checks::Part& p) { show_part(number, id, r, p, json); }, problem)) {
        const std::string rest = checks::to_utf8(r.substr(std::min(r.size(), problem.at)));
        if (json)
            print_json(
                {{"record", number}, {"id", id}, {"at", problem.at + 1}, {"raw", rest}, {"problem", problem.rule->id}});
        else
            std::cout << "  from character " << problem.at + 1 << ": " << problem.rule->english << ": [" << rest
                      << "]\n";
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
