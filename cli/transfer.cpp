#include "cli/transfer.h"

#include <cstdio>

#include "component/call_protocol.h"
#include "component/call_registry.h"
#include "component/json_limits.h"
#include "component/report_runner.h"
#include "component/shared_bindings.h"
#include "core/error.h"

namespace tamrel::cli {
namespace {

using nlohmann::json;

// Values of the XML report must hold no markup characters: the library
// inserts them as they are.
void check_markup(const json& v, const std::string& path, const std::string& where) {
    if (v.is_string()) {
        const auto& s = v.get_ref<const std::string&>();
        if (s.find_first_of("&<>") != std::string::npos)
            throw ReportFailure(where + ": " + path +
                                ": holds a markup character (&, < or >), which an XML report cannot carry");
    } else if (v.is_object()) {
        for (const auto& [k, e] : v.items()) check_markup(e, path + "." + k, where);
    } else if (v.is_array()) {
        std::size_t i = 1;
        for (const auto& e : v) check_markup(e, path + "[" + std::to_string(i++) + "]", where);
    }
}

void check_markup_text(const std::string& line, const std::string& param, const std::string& where) {
    if (line.find_first_of("&<>") == std::string::npos) return;
    json parsed;
    try {
        parsed = parse_bounded(line);
    } catch (const std::exception&) {
        return;  // not JSON: the reader reports it
    }
    check_markup(parsed, param, where);
}

// Where a step runs ("report 12", "report 12 protocol", "DSKO"), put into
// words only when the step fails.
struct Where {
    std::string_view name;
    std::size_t report = 0;  // the report's number, 0 for the frame
    bool protocol = false;
    std::size_t line = 0;  // its line in the NDJSON file, 0 for a job's inline report
    std::string text() const {
        std::string t(name);
        if (report) t += " " + std::to_string(report);
        if (line) t += " (line " + std::to_string(line) + ")";
        if (protocol) t += " protocol";
        return t;
    }
};

// Runs a step; a request error or a library error becomes a ReportFailure
// that names where it happened.
template <class F>
auto run(const Where& where, F&& step) -> decltype(step()) {
    try {
        return step();
    } catch (const json_binding::RequestError& e) {
        throw ReportFailure(where.text() + ": " + e.what());
    } catch (const tamrel::Error& e) {
        throw ReportFailure(where.text() + ": error " + std::to_string(e.number()) + ", " + e.source() + ": " +
                            e.description());
    }
}

class TransferRun {
public:
    TransferRun(const Job& job, const TransferSettings& s)
        : job_(job),
          settings_(s),
          session_(job.now.is_null() ? nullptr : &job.now, job.tests.is_null() ? nullptr : &job.tests) {}

    // Calls a method of the job's class (or of clsProtoEntry for the
    // protocol lines) with `args`.
    std::string call_method(const char* method, const json& args, const Where& where) {
        return run(where, [&] {
            const bool protocol = std::string_view(method).starts_with("CreateProto");
            const Method& m = CallSession::method(protocol ? "clsProtoEntry" : job_.info->cls, method);
            return session_.invoke(m, args);
        });
    }

    json vosz_args() const {
        json a = job_.frame;
        a.erase("strCount");
        if (job_.info->frames != ClassInfo::BeitrErh) a["enmVerfahren"] = job_.enmVerfahren;
        if (!job_.datDate.is_null()) a["datDate"] = job_.datDate;
        return a;
    }
    json dsko_args() const {
        json a = {{"udtDSKOData", job_.dsko}};
        if (job_.info->frames == ClassInfo::BeitrNachw) a["enmVerfahren"] = job_.enmVerfahren;
        if (!job_.datDate.is_null()) a["datDate"] = job_.datDate;
        return a;
    }
    json ncsz_args(std::size_t count) const {
        json a = {{"strBNRAb", job_.frame.value("strBNRAb", json())},
                  {"strBNREm", job_.frame.value("strBNREm", json())},
                  {"strFileNr", job_.frame.value("strFileNr", json())},
                  {"strCount", std::to_string(count)}};
        if (job_.info->frames == ClassInfo::Meldung || job_.info->frames == ClassInfo::BeitrNachw)
            a["enmVerfahren"] = job_.enmVerfahren;
        if (!job_.datDate.is_null()) a["datDate"] = job_.datDate;
        return a;
    }

    // The runner that turns each report into its record: the record
    // identification, procedure and date of the job, read once.
    std::unique_ptr<ReportRunner> runner() const {
        return run({"udtDatensatzData"}, [&] {
            json a = {{"udtDatensatzData", job_.datensatz}, {"enmVerfahren", job_.enmVerfahren}};
            if (!job_.datDate.is_null()) a["datDate"] = job_.datDate;
            Invocation inv(a, session_.host());
            RunnerSettings settings{&session_.host(), inv.object<DatensatzData>("udtDatensatzData"),
                                    job_.info->frames == ClassInfo::BeitrNachw ? inv.enm("enmVerfahren")
                                                                              : inv.verf("enmVerfahren"),
                                    inv.date("datDate")};
            return make_runner(job_.info->cls, settings);
        });
    }

    // The record text in the file's encoding, with its line ending, into
    // `out` (a buffer kept from line to line). A character that cannot be
    // written is named with the report's property that holds it, when the
    // record is a report's (`runner`).
    void encode_line(std::string& out, std::string_view record, const Where& where,
                     const ReportRunner* runner = nullptr) {
        out.clear();
        made_.clear();
        const Unencodable mode = settings_.transliterate ? Unencodable::Transliterate : Unencodable::Fail;
        if (const EncodeFailure f = encode(out, record, settings_.encoding, mode, &made_))
            throw ReportFailure(where.text() + ": " + unwritable(f, runner));
        substituted_.clear();
        if (!made_.empty()) {
            substituted_ = substitutions(runner);
            if (settings_.note) settings_.note(where.text() + ": " + substituted_);
        }
        out += settings_.crlf ? "\r\n" : "\n";
    }
    // A protocol line is always written: characters the encoding cannot
    // hold become their substitutes (or "?"), control characters are dropped.
    void encode_protocol(std::string& out, std::string_view line) const {
        out.clear();
        encode(out, line, settings_.encoding, Unencodable::Replace);
        out += settings_.crlf ? "\r\n" : "\n";
    }
    // What the last record's substitutions were, in words (empty: none).
    const std::string& substituted() const { return substituted_; }
    std::string encoded_line(std::string_view record, const Where& where) {
        std::string out;
        encode_line(out, record, where);
        return out;
    }

private:
    std::string where_held(std::string_view character, const ReportRunner* runner) const {
        if (!runner) return {};
        const ReportRunner::Text t =
            runner->find_text([&](std::string_view v) { return v.find(character) != std::string_view::npos; });
        return t.name.empty() ? std::string() : t.name + " \"" + printable(t.value) + "\": ";
    }
    std::string unwritable(const EncodeFailure& f, const ReportRunner* runner) const {
        std::string held = where_held(f.character, runner);
        if (f.control) {
            return held + "the control character " + unicode_name(f.character) + " (at position " +
                   std::to_string(f.position) +
                   ") cannot be written in a transfer file";
        }
        return held + "\"" + std::string(f.character) + "\" (at position " + std::to_string(f.position) +
               ") cannot be written in " + encoding_name(settings_.encoding) +
               (substitute(f.code).empty() ? std::string()
                : "; --transliterate writes it as \"" + std::string(substitute(f.code)) + "\"");
    }
    std::string substitutions(const ReportRunner* runner) const {
        std::string t;
        for (const Substitution& s : made_) {
            const std::string item = "\"" + std::string(s.from) + "\" (" + unicode_name(s.from) + ") written as \"" +
                                     std::string(s.to) + "\"";
            if (t.find(item) != std::string::npos) continue;
            if (!t.empty()) t += ", ";
            t += where_held(s.from, runner) + item;
        }
        return t;
    }
    // A value as it may be quoted in a message: control characters shown as "?".
    static std::string printable(std::string_view v) {
        std::string out(v);
        for (char& c : out)
            if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) c = '?';
        return out;
    }

    const Job& job_;
    const TransferSettings& settings_;
    CallSession session_;
    std::vector<Substitution> made_;
    std::string substituted_;
};

}  // namespace

TransferCounts write_transfer(const Job& job, ReportSource& source, const TransferSettings& settings, Sink& out,
                              Sink* proto) {
    const bool xml = job.info->frames == ClassInfo::Asyl;
    TransferRun gen(job, settings);
    TransferCounts counts;
    if (xml) {
        check_markup(job.frame, "frame", "header");
        out.write(gen.encoded_line(
            std::string("<?xml version=\"1.0\" encoding=\"") + encoding_name(settings.encoding) + "\"?>", {"header"}));
        out.write(gen.encoded_line("<kotkv xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">", {"header"}));
    }
    const Where vosz{"header VOSZ"}, dsko{"DSKO"}, ncsz{"trailer NCSZ"};
    out.write(gen.encoded_line(gen.call_method("GenVOSZ", gen.vosz_args(), vosz), vosz));
    if (!xml) out.write(gen.encoded_line(gen.call_method("GenDSKO", gen.dsko_args(), dsko), dsko));

    std::unique_ptr<ReportRunner> runner = gen.runner();
    const std::string param = job.info->objParam;
    const json* element = nullptr;
    std::string text, line, proto_line;
    std::size_t length = 0;
    for (std::size_t index = 1;; ++index) {
        if (!source.next(element, text, length)) break;
        const std::size_t at = source.line_number();
        const Where report{"report", index, false, at}, report_protocol{"report", index, true, at};
        bool read = false;  // whether the report could be read into its object
        try {
            if (length > kMaxLineBytes) throw ReportFailure(report.text() + ": " + line_too_long_text(length));
            if (xml)
                element ? check_markup(*element, param, report.text()) : check_markup_text(text, param, report.text());
            run(report, [&] { element ? runner->read(*element) : runner->read_text(text); });
            read = true;
            gen.encode_line(line, run(report, [&] { return runner->data(); }), report, runner.get());
            // The substitutions of the record are the protocol line's text.
            if (proto)
                gen.encode_protocol(proto_line,
                                    run(report_protocol, [&] { return runner->protocol(false, gen.substituted()); }));
            out.write(line);
            if (proto) proto->write(proto_line);
            ++counts.written;
        } catch (const ReportFailure& f) {
            if (!settings.keepGoing) throw;
            ++counts.failed;
            if (settings.leftOut) settings.leftOut(f);
            // Every report left out has its protocol line; one that could not
            // be read is recorded with an empty data object.
            if (proto) {
                if (!read) runner->clear();
                gen.encode_protocol(proto_line, run(report_protocol, [&] { return runner->protocol(true, f.what()); }));
                proto->write(proto_line);
            }
        }
        if (settings.progress && index % 100000 == 0) settings.progress(index);
    }
    const std::size_t count = counts.written + (xml ? 0 : 1);
    out.write(gen.encoded_line(gen.call_method("GenNCSZ", gen.ncsz_args(count), ncsz), ncsz));
    if (xml) out.write(gen.encoded_line("</kotkv>", {"trailer"}));
    return counts;
}

}  // namespace tamrel::cli
