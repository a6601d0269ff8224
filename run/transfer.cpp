#include "run/transfer.h"

#include <cstdio>

#include "call/call_protocol.h"
#include "call/call_registry.h"
#include "call/report_runner.h"
#include "checks/checks.h"
#include "core/error.h"
#include "core/objects_properties.h"
#include "core/printable.h"
#include "json/field_table.h"
#include "json/json_limits.h"
#include "json/text_properties.h"
#include "reader/transfer_file.h"
#include "run/input_texts.h"
#include "xml/clsGenAsyl/document.h"
#include "xml/clsGenAsyl/markup_check.h"

namespace tamrel::cli {
namespace {

using nlohmann::json;

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

// Tells every finding; the first error (if any) fails the step.
void tell_findings(const checks::Findings& f, const TransferSettings& s, const Where& where) {
    if (s.finding)
        for (const checks::Finding& x : f.list()) s.finding(where.report, where.line, x);
    if (!f.has_errors()) return;
    std::size_t errors = 0;
    const checks::Finding* first = nullptr;
    for (const checks::Finding& x : f.list())
        if (x.rule->severity == checks::Severity::Error && !errors++) first = &x;
    throw ReportFailure(where.text() + ": " + checks::describe(*first) +
                        (errors > 1 ? " (and " + std::to_string(errors - 1) + " more)" : ""));
}

// A frame record as built is read back as tamrel check reads it: a field
// that the checks of the frame's values did not cover fails the run here
// instead of the file later. The findings name the field (its layout name,
// the value that fed it) and where it is in the record.
void verify_record(std::string_view record, const TransferSettings& s, const Where& where) {
    const std::vector<checks::FileFinding> found = checks::check_record(record);
    if (found.empty()) return;
    checks::Findings f;
    for (const checks::FileFinding& x : found) {
        std::string field = x.field.empty() ? std::string() : x.field + " in ";
        field += x.id + (x.part.empty() ? std::string() : "/" + x.part);
        if (x.pos)
            field += x.field.empty() ? " at character " + std::to_string(x.pos)
                                     : " at " + std::to_string(x.pos) + "-" + std::to_string(x.pos + x.len - 1);
        f.add(*x.rule, std::move(field), x.value);
    }
    tell_findings(f, s, where);
}

// The texts of an XML report are checked for markup before it is built.
void check_frame_markup(const FrameValues& f) {
    const std::pair<const char*, const std::string*> texts[] = {{"strBNRAb", &f.strBNRAb},
                                                                {"strBNREm", &f.strBNREm},
                                                                {"strDatum", &f.strDatum},
                                                                {"strFileNr", &f.strFileNr},
                                                                {"strFirma", &f.strFirma}};
    for (const auto& [name, value] : texts)
        if (xml::holds_markup(*value))
            throw ReportFailure("header: frame." + std::string(name) + ": " + std::string(xml::kMarkupFault));
}
void check_report_markup(const ReportRunner& runner, const std::string& param, const Where& where) {
    const ReportRunner::Text t = runner.find_text(xml::holds_markup);
    if (!t.name.empty())
        throw ReportFailure(where.text() + ": " + param + "." + t.name + ": " + std::string(xml::kMarkupFault));
}

class TransferRun {
public:
    TransferRun(const Job& job, const TransferSettings& s)
        : job_(job),
          settings_(s),
          session_(job.now.is_null() ? nullptr : &job.now, job.tests.is_null() ? nullptr : &job.tests),
          texts_(s.encoding, s.transliterate),
          frame_(job.frame),
          datensatz_(job.datensatz) {}

    // The frame's texts made ready as a report's are (input_texts.h).
    void prepare_frame() {
        texts_.clear();
        const Where header{"header"};
        const std::pair<const char*, std::string*> own[] = {{"strBNRAb", &frame_.strBNRAb},
                                                            {"strBNREm", &frame_.strBNREm},
                                                            {"strFileNr", &frame_.strFileNr},
                                                            {"strFirma", &frame_.strFirma},
                                                            {"strDatum", &frame_.strDatum}};
        for (const auto& [name, value] : own)
            if (!json_binding::plain_ascii(*value))
                prepare(
                    *value, [name = name] { return std::string(name); }, header);
        const json_binding::TextPlace dsko{nullptr, {}, "udtDSKOData"}, datensatz{nullptr, {}, "udtDatensatzData"};
        auto edit = [&](std::string& v, const json_binding::TextPlace& at) {
            prepare(
                v, [&at] { return at.text(); }, header);
        };
        json_binding::edit_texts(frame_.udtDSKOData, &dsko, edit);
        json_binding::edit_texts(datensatz_, &datensatz, edit);
        tell_substitutions(header);
    }
    const FrameValues& frame() const { return frame_; }
    const DatensatzData& datensatz() const { return datensatz_; }

    // The report's texts made ready; their substitutions are told.
    void prepare_report(ReportRunner& runner, const Where& where) {
        texts_.clear();
        runner.edit_texts([&](std::string& v, const json_binding::TextPlace& at) {
            prepare(
                v, [&at] { return at.text(); }, where);
        });
        tell_substitutions(where);
    }
    // What the last report's or the frame's substitutions were, in words
    // (empty: none): a protocol line's text.
    const std::string& substituted() const { return texts_.substituted(); }

    // The frame records, by the procedure's typed calls.
    std::string vosz() {
        return run({"header VOSZ"}, [&] {
            FrameValues v = frame_;
            return job_.procedure->GenVOSZ(session_.host(), v);
        });
    }
    std::string dsko() {
        return run({"DSKO"}, [&] {
            FrameValues v = frame_;
            return job_.procedure->GenDSKO(session_.host(), v);
        });
    }
    std::string ncsz(std::size_t count) {
        return run({"trailer NCSZ"},
                   [&] { return job_.procedure->GenNCSZ(session_.host(), frame_, std::to_string(count)); });
    }

    const std::vector<std::string>& log() const { return session_.log(); }
    void clear_log() { session_.clear_log(); }

    // The runner that turns each report into its record, with the record
    // identification, procedure and date of the job.
    std::unique_ptr<ReportRunner> runner() const {
        const RunnerSettings settings{&session_.host(), datensatz_, frame_.enmVerfahren, frame_.datDate};
        return job_.procedure->runner(*job_.procedure, settings);
    }

    // The record text in the file's encoding, with its line ending, into
    // `out` (a buffer kept from line to line). A character that cannot be
    // written is named with the report's property that holds it, when the
    // record is a report's (`runner`).
    void encode_line(std::string& out, std::string_view record, const Where& where,
                     const ReportRunner* runner = nullptr) {
        out.clear();
        if (const EncodeFailure f = encode(out, record, settings_.encoding))
            throw ReportFailure(where.text() + ": " + unwritable(f, runner));
        out += settings_.crlf ? "\r\n" : "\n";
    }
    // A protocol line is always written: characters the encoding cannot
    // hold become their substitutes (or "?"), control characters are dropped.
    void encode_protocol(std::string& out, std::string_view line) const {
        out.clear();
        encode(out, line, settings_.encoding, Unencodable::Replace);
        out += settings_.crlf ? "\r\n" : "\n";
    }
    std::string encoded_line(std::string_view record, const Where& where) {
        std::string out;
        encode_line(out, record, where);
        return out;
    }

private:
    void prepare(std::string& value, const InputTexts::Name& name, const Where& where) {
        const std::string error = texts_.prepare(value, name);
        if (!error.empty()) throw ReportFailure(where.text() + ": " + error);
    }
    void tell_substitutions(const Where& where) {
        if (!texts_.substituted().empty() && settings_.note) settings_.note(where.text() + ": " + texts_.substituted());
    }
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
                   std::to_string(f.position) + ") cannot be written in a transfer file";
        }
        return held + "\"" + std::string(f.character) + "\" (" + unicode_name(f.character) + ", at position " +
               std::to_string(f.position) + ") cannot be written in " + encoding_name(settings_.encoding) +
               (substitute(f.code).empty()
                    ? std::string()
                    : "; --transliterate writes it as \"" + std::string(substitute(f.code)) + "\"");
    }

    const Job& job_;
    const TransferSettings& settings_;
    CallSession session_;
    InputTexts texts_;
    FrameValues frame_;
    DatensatzData datensatz_;
};

}  // namespace

TransferCounts write_transfer(const Job& job, ReportSource& source, const TransferSettings& settings, Sink& out,
                              Sink* proto) {
    const bool xml = job.procedure->xml();
    TransferRun gen(job, settings);
    TransferCounts counts;
    gen.prepare_frame();
    if (settings.check) {
        checks::Findings f;
        const FrameValues& v = gen.frame();
        // Every class but the contribution statement takes a VerfMerkmal.
        const bool verf = job.procedure->frames != FrameForm::BeitrNachw;
        checks::check_frame({v.strBNRAb, v.strBNREm, v.strFileNr, v.strDatum, verf ? &v.enmVerfahren : nullptr,
                             xml ? nullptr : &v.udtDSKOData, &gen.datensatz()},
                            f);
        tell_findings(f, settings, {"header"});
    }
    // The frame records are read back before they are written (the data
    // records' fields are covered by the checks, rule sets and layout rules,
    // at a fraction of the cost of reading each record back).
    const bool verify = settings.check && !xml;
    auto checked = [&](std::string record, const Where& where) {
        if (verify) verify_record(record, settings, where);
        return record;
    };
    if (xml) {
        check_frame_markup(gen.frame());
        out.write(gen.encoded_line(xml::declaration(encoding_name(settings.encoding)), {"header"}));
        out.write(gen.encoded_line(xml::kRootOpen, {"header"}));
    }
    const Where vosz{"header VOSZ"}, dsko{"DSKO"}, ncsz{"trailer NCSZ"};
    out.write(gen.encoded_line(checked(gen.vosz(), vosz), vosz));
    if (!xml) out.write(gen.encoded_line(checked(gen.dsko(), dsko), dsko));

    std::unique_ptr<ReportRunner> runner = gen.runner();
    const std::string param(job.procedure->objParam);
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
            run(report, [&] { element ? runner->read(*element) : runner->read_text(text); });
            read = true;
            if (element || may_need_preparing(text)) gen.prepare_report(*runner, report);
            if (xml) check_report_markup(*runner, param, report);
            if (settings.check) {
                checks::Findings f;
                runner->check(f);
                tell_findings(f, settings, report);
            }
            gen.encode_line(line, run(report, [&] { return runner->data(); }), report, runner.get());
            // The substitutions of the record are the protocol line's text.
            if (proto)
                gen.encode_protocol(proto_line,
                                    run(report_protocol, [&] { return runner->protocol(false, gen.substituted()); }));
            out.write(line);
            if (proto) proto->write(proto_line);
            ++counts.written;
        } catch (const ReportFailure& f) {
            if (settings.failureLog && !gen.log().empty()) settings.failureLog(index, at, gen.log());
            // A line beyond the bound ends the reading: what follows it is
            // unread, so the run cannot go on without losing reports.
            if (!settings.keepGoing || length > kMaxLineBytes) throw;
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
        gen.clear_log();
        if (settings.progress && index % 100000 == 0) settings.progress(index);
    }
    const std::size_t count = counts.written + (xml ? 0 : 1);
    out.write(gen.encoded_line(checked(gen.ncsz(count), ncsz), ncsz));
    if (xml) out.write(gen.encoded_line(xml::kRootClose, {"trailer"}));
    return counts;
}

}  // namespace tamrel::cli
