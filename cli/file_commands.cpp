#include "cli/file_commands.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>

#include <nlohmann/json.hpp>

#include "checks/rules.h"
#include "core/printable.h"
#include "readback/transfer_reading.h"
#include "reader/field_kinds.h"
#include "reader/line_walk.h"
#include "reader/transfer_file.h"
#include "run/atomic_file.h"
#include "run/output_encoding.h"

namespace tamrel::cli {
namespace {

// Runs `body` on the opened file; a file that cannot be read or is no
// transfer file is told on standard error (exit code 2).
template <class Body>
int with_file(const std::string& command, const FileOptions& o, Body&& body) {
    auto refuse = [&](const std::string& why) {
        std::cerr << "tamrel " << command << ": " << printable(o.path) << ": " << why << '\n';
        return 2;
    };
    checks::FileEncoding encoding = checks::FileEncoding::Detect;
    if (!o.encoding.empty()) {
        const std::optional<Encoding> e = parse_encoding(o.encoding);
        if (!e) {
            std::cerr << "tamrel " << command << ": --encoding: expected " << kEncodingSpellings << '\n';
            return 2;
        }
        encoding = file_encoding(*e);
    }
    std::ifstream file;
    if (o.path != "-") {
        if (std::filesystem::is_directory(o.path)) return refuse("is a folder, not a transfer file");
        file.open(o.path, std::ios::binary);
        if (!file) return refuse(std::string("cannot be read: ") + std::strerror(errno));
    }
    try {
        return body(o.path == "-" ? std::cin : file, encoding);
    } catch (const std::exception& e) {
        return refuse(e.what());
    }
}

void print_json(const nlohmann::ordered_json& j) {
    std::cout << j.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
}

// One finding of a file as a line of `check --json`, with the same keys as
// a finding of generate's --findings where they mean the same.
nlohmann::ordered_json finding_json(const checks::FileFinding& f) {
    nlohmann::ordered_json j = {{"record", f.record}, {"id", f.id}};
    if (!f.part.empty()) j["part"] = f.part;
    if (!f.field.empty()) j["field"] = f.field;
    if (f.pos) j.update(nlohmann::ordered_json{{"pos", f.pos}, {"len", f.len}});
    j.update(nlohmann::ordered_json{{"value", f.value},
                                    {"rule", f.rule->id},
                                    {"severity", f.rule->severity == checks::Severity::Error ? "error" : "warning"},
                                    {"message", f.rule->german},
                                    {"message_en", f.rule->english}});
    return j;
}

}  // namespace

int check_file(const FileOptions& o) {
    return with_file("check", o, [&](std::istream& in, checks::FileEncoding encoding) {
        const checks::FileCheck result = checks::check_transfer_file(in, encoding);
        std::size_t errors = 0, warnings = 0;
        for (const checks::FileFinding& f : result.findings) {
            if (o.json)
                print_json(finding_json(f));
            else
                std::cout << checks::describe(f) << '\n';
            ++(f.rule->severity == checks::Severity::Error ? errors : warnings);
        }
        (o.json ? std::cerr : std::cout) << printable(o.path) << ": " << result.records << " records, " << errors
                                         << " errors, " << warnings << " warnings\n";
        return errors ? 1 : 0;
    });
}

namespace {

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
        std::cout << head << "[" << printable(raw) << "]"
                  << (value != raw && !value.empty() ? "  " + printable(value) : std::string()) << '\n';
    }
}

void show_record(std::size_t number, std::u32string_view r, bool json) {
    const RecordLayout* layout = checks::find_layout(r);
    const std::string id = checks::to_utf8(r.substr(0, 4));
    if (!json) std::cout << "record " << number << " " << printable(id) << " (" << r.size() << " characters)\n";
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
            std::cout << "  from character " << problem.at + 1 << ": " << problem.rule->english << ": ["
                      << printable(rest) << "]\n";
    }
}

}  // namespace

int inspect_file(const FileOptions& o, std::size_t only) {
    return with_file("inspect", o, [&](std::istream& in, checks::FileEncoding encoding) {
        std::size_t number = 0;
        checks::read_records(
            in,
            [&](std::u32string_view r) {
                if (!only || ++number == only) show_record(only ? only : ++number, r, o.json);
            },
            encoding);
        if (only && number < only) {
            std::cerr << "tamrel inspect: --record " << only << ": the file has " << number << " records\n";
            return 2;
        }
        return 0;
    });
}

int read_file(const ReadOptions& o) {
    return with_file("read", o.file, [&](std::istream& in, checks::FileEncoding encoding) {
        std::optional<AtomicFile> reports;
        if (!o.reportsOut.empty()) reports.emplace(resolve_output(o.reportsOut));
        nlohmann::ordered_json inline_reports = nlohmann::ordered_json::array();
        const readback::ReadResult r = readback::read_transfer(in, {encoding}, [&](const std::string& report) {
            if (reports)
                reports->write(report + "\n");
            else if (!o.errors)
                inline_reports.push_back(nlohmann::ordered_json::parse(report));
        });
        for (const readback::SkippedRecord& s : r.skipped)
            std::cerr << "tamrel read: " << printable(readback::describe(s)) << '\n';
        if (o.errors) {
            for (const readback::ReturnedErrorEntry& e : r.errors) {
                const nlohmann::ordered_json j = readback::to_json(e);
                if (o.file.json) {
                    print_json(j);
                } else {
                    std::cout << "record " << e.record << " " << e.id;
                    for (const auto& [k, v] : e.keys.items()) std::cout << " " << k << "=" << v.dump();
                    std::cout << ": " << e.error.number << " " << e.error.text;
                    if (!e.property.empty())
                        std::cout << " -> " << (e.field.empty() ? "" : e.field + " ") << "pos " << e.pos << "-"
                                  << e.pos + e.len - 1 << ", property " << e.property;
                    std::cout << '\n';
                }
            }
            std::cerr << "tamrel read: " << r.errors.size() << " error blocks in " << r.records << " records\n";
            return r.errors.empty() ? 0 : 1;
        }
        nlohmann::ordered_json job = r.job;
        if (reports)
            job["reports_file"] = std::filesystem::path(o.reportsOut)
                                      .lexically_relative(std::filesystem::path(o.output).parent_path())
                                      .string();
        else
            job["reports"] = std::move(inline_reports);
        readback::add_returned_errors(job, r);
        const std::string text = job.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
        AtomicFile out(resolve_output(o.output.empty() ? "-" : o.output));
        out.write(text);
        if (reports)
            commit_all({&out, &*reports});
        else
            commit_all({&out});
        std::cerr << "tamrel read: " << r.reports << " reports from " << r.records << " records";
        if (!r.skipped.empty()) std::cerr << ", " << r.skipped.size() << " skipped";
        std::cerr << '\n';
        return r.skipped.empty() ? 0 : 3;
    });
}

}  // namespace tamrel::cli
