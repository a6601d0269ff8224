#include "cli/transfer.h"

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
void check_markup(const json& v, const std::string& path, std::size_t index) {
    if (v.is_string()) {
        const auto& s = v.get_ref<const std::string&>();
        if (s.find_first_of("&<>") != std::string::npos)
            throw ReportFailure("report " + std::to_string(index) + ": " + path +
                                ": holds a markup character (&, < or >), which an XML report cannot carry");
    } else if (v.is_object()) {
        for (const auto& [k, e] : v.items()) check_markup(e, path + "." + k, index);
    } else if (v.is_array()) {
        std::size_t i = 1;
        for (const auto& e : v) check_markup(e, path + "[" + std::to_string(i++) + "]", index);
    }
}

void check_markup_text(const std::string& line, const std::string& param, std::size_t index) {
    if (line.find_first_of("&<>") == std::string::npos) return;
    json parsed;
    try {
        parsed = parse_bounded(line);
    } catch (const std::exception&) {
        return;  // not JSON: the reader reports it
    }
    check_markup(parsed, param, index);
}

// Where a step runs ("report 12", "report 12 protocol", "DSKO"), put into
// words only when the step fails.
struct Where {
    std::string_view name;
    std::size_t report = 0;  // the report's number, 0 for the frame
    bool protocol = false;
    std::string text() const {
        std::string t(name);
        if (report) t += " " + std::to_string(report);
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
    // `out` (a buffer kept from line to line).
    void encode_line(std::string& out, std::string_view record, const Where& where) const {
        out.clear();
        if (const EncodeFailure f = encode(out, record, settings_.encoding))
            throw ReportFailure(where.text() + ": the character at position " + std::to_string(f.position) +
                                (f.control ? " is a control character, which a transfer file cannot carry"
                                           : std::string(" cannot be written in ") + encoding_name(settings_.encoding)));
        out += settings_.crlf ? "\r\n" : "\n";
    }
    std::string encoded_line(std::string_view record, const Where& where) const {
        std::string out;
        encode_line(out, record, where);
        return out;
    }

private:
    const Job& job_;
    const TransferSettings& settings_;
    CallSession session_;
};

}  // namespace

TransferCounts write_transfer(const Job& job, ReportSource& source, const TransferSettings& settings, Sink& out,
                              Sink* proto) {
    const bool xml = job.info->frames == ClassInfo::Asyl;
    TransferRun gen(job, settings);
    TransferCounts counts;
    if (xml) {
        check_markup(job.frame, "frame", 0);
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
        const Where report{"report", index}, report_protocol{"report", index, true};
        bool read = false;  // whether the report could be read into its object
        try {
            if (!source.next(element, text, length)) break;
            if (length > kMaxLineBytes) throw ReportFailure(report.text() + ": " + line_too_long_text(length));
            if (xml) element ? check_markup(*element, param, index) : check_markup_text(text, param, index);
            run(report, [&] { element ? runner->read(*element) : runner->read_text(text); });
            read = true;
            gen.encode_line(line, run(report, [&] { return runner->data(); }), report);
            if (proto)
                gen.encode_line(proto_line, run(report_protocol, [&] { return runner->protocol(false, {}); }),
                                report_protocol);
            out.write(line);
            if (proto) proto->write(proto_line);
            ++counts.written;
        } catch (const ReportFailure& f) {
            if (!settings.keepGoing) throw;
            ++counts.failed;
            if (settings.leftOut) settings.leftOut(f);
            // A report that cannot even be read has no protocol line of its own.
            if (proto && read)
                proto->write(gen.encoded_line(
                    run(report_protocol, [&] { return runner->protocol(true, f.what()); }), report_protocol));
        }
        if (settings.progress && index % 100000 == 0) settings.progress(index);
    }
    const std::size_t count = counts.written + (xml ? 0 : 1);
    out.write(gen.encoded_line(gen.call_method("GenNCSZ", gen.ncsz_args(count), ncsz), ncsz));
    if (xml) out.write(gen.encoded_line("</kotkv>", {"trailer"}));
    return counts;
}

}  // namespace tamrel::cli
