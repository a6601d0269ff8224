#include "readback/transfer_reading.h"

#include <memory>
#include <unordered_map>

#include "call/procedure.h"
#include "core/frame_layouts.h"
#include "readback/error_fields.h"
#include "readback/procedure_readers.h"
#include "readback/prover.h"
#include "readback/xml_report_reading.h"
#include "reader/field_sources.h"
#include "reader/line_walk.h"
#include "reader/record_layouts.h"

namespace tamrel::readback {
namespace {

using checks::to_utf8;
using nlohmann::ordered_json;

// Where two records first differ, and the field there, for a record that
// does not come out again.
std::string difference(std::u32string_view want, std::u32string_view got, std::span<const checks::Part> parts) {
    std::size_t chars = 0;
    while (chars < want.size() && chars < got.size() && want[chars] == got[chars]) ++chars;
    std::string where;
    for (const checks::Part& p : parts)
        for (const FieldLayout& f : p.layout->fields)
            if (chars >= p.at + f.pos - 1u && chars < p.at + f.pos - 1u + f.len)
                where = " (" + checks::part_label(p) + (p.block ? " " : "") + std::string(f.name) + ")";
    return "read back, it builds differently from character " + std::to_string(chars + 1) + where;
}

void read_vosz(std::u32string_view line, Frame& f) {
    namespace V = layouts::VOSZ;
    f.vosz = to_utf8(line);
    for (const FieldLayout* field : {&V::strBNRAb, &V::strBNREm, &V::strFileNr, &V::strFirma})
        f.head[std::string(field->name)] = field_value(checks::field_text(line, *field), *field);
    f.voszDate = checks::field_text(line, V::strDatum);
}

void read_dsko(std::u32string_view line, Frame& f) {
    f.dsko = to_utf8(line);
    DSKOData d;
    for (const FieldLayout& field : layouts::DSKO::kFields) {
        if (derived(field) || field.kind == FieldKind::DateTime) continue;
        assign(d, field.name, {}, field_value(checks::field_text(line, field), field));
    }
    f.dskoCreated = checks::field_text(line, layouts::DSKO::Erstellt);
    f.dskoData = ordered_json::parse(to_json(d));
}

class FileReader {
public:
    FileReader(ReadResult& out, const std::function<void(const std::string&)>& report)
        : out_(out), report_out_(report) {}

    void line(const checks::RecordText& read) {
        const std::u32string_view line = read.chars;
        const std::size_t n = ++out_.records;
        const RecordLayout* layout = checks::find_layout(line);
        const std::string id = to_utf8(line.substr(0, 4));
        if (!layout) return skip(n, id, "no procedure tamrel writes has this record");
        const checks::ReturnedLine r = checks::split_returned(line, *layout);
        if (!r.problem.empty()) return skip(n, id, r.problem);
        if (layout == &layouts::kVOSZ) {
            read_vosz(r.record, frame_);
            for (const auto& e : r.errors) out_.errors.push_back({n, 0, id, ordered_json::object(), e, {}, {}});
        } else if (layout == &layouts::kDSKO) {
            read_dsko(r.record, frame_);
            file_errors(n, id, r, *layout, nullptr);
        } else if (layout != &layouts::kNCSZ) {
            data(n, id, r, *layout, read);
        }
    }

    void finish() {
        if (!prover_) {
            // A file without data records: the class from the header alone.
            for (const ProcedureDescriptor& p : procedures())
                if (!p.xml() && settle(p, nullptr)) break;
        }
        if (prover_) {
            out_.job = prover_->head();
            if (header_unproven_ || (!frame_.vosz.empty() && prover_->vosz() != frame_.vosz))
                skip(1, "VOSZ", "read back, the header builds differently");
            if (!frame_.dsko.empty() && prover_->dsko() != frame_.dsko)
                skip(2, "DSKO", "read back, the communication record builds differently");
        } else {
            out_.job = job_head("", frame_, nullptr, 0);
        }
    }

private:
    void skip(std::size_t n, std::string id, std::string why) { out_.skipped.push_back({n, std::move(id), why}); }

    // Takes `p` as the file's class if its header comes out as read, with
    // one of the values of enmVerfahren; the first data record's head, if
    // given, completes the frame.
    bool settle(const ProcedureDescriptor& p, const RecordFrame* first) {
        for (std::int32_t v : kVerfahren) {
            try {
                auto candidate = std::make_unique<Prover>(p, job_head(p.cls, frame_, first, v));
                if (frame_.vosz.empty() || candidate->vosz() == frame_.vosz) {
                    prover_ = std::move(candidate);
                    return true;
                }
            } catch (const std::exception&) {
                // frame values this class refuses: not its file
            }
        }
        return false;
    }

    void data(std::size_t n, const std::string& id, const checks::ReturnedLine& r, const RecordLayout& layout,
              const checks::RecordText& read) {
        const ProcedureReader* reader = reader_for_record(layout);
        if (!reader) return skip(n, id, "tamrel reads no record " + id);
        if (cls_.empty()) {
            cls_ = reader->cls;
        } else if (reader->cls != cls_) {
            return skip(n, id, "a record of another procedure than the file's first (" + cls_ + ")");
        }
        parts_.clear();
        checks::WalkProblem problem;
        if (!checks::walk_line(
                r.record, layout, [&](const checks::Part& p) { parts_.push_back(p); }, problem))
            return skip(n, id,
                        std::string("does not fit its layout") +
                            (problem.at > 0 ? " at character " + std::to_string(problem.at + 1) : std::string()) +
                            ": " + std::string(problem.rule->english) +
                            (problem.value.empty() ? std::string() : " (" + problem.value + ")"));
        // The report's text keeps its buffer from record to record.
        ReadReport& report = report_;
        report.frame = {};
        // The first record is read on its own, as it settles the frame; the
        // others straight into the runner that builds them again. The
        // line's text stays this line's until the next line is read.
        const LineText& text = line_text(r.record, read.bytes, read.encoding);
        const bool read_into_runner =
            reader->read(text, parts_, !first_created_.empty() ? first_created_ : frame_.dskoCreated,
                         prover_ ? &prover_->runner() : nullptr, report);
        if (first_created_.empty())
            first_created_ = !frame_.dskoCreated.empty() ? frame_.dskoCreated : report.frame.created;
        if (!prover_ && !settle(*find_procedure(cls_), &report.frame)) {
            // No header, or one the class does not write: the frame from the
            // record alone, and the header told as not read back.
            header_unproven_ = !frame_.vosz.empty();
            frame_.vosz.clear();
            settle(*find_procedure(cls_), &report.frame);
        }
        if (!prover_) return skip(n, id, "the frame values cannot be read");
        const Prover::Built built = read_into_runner ? prover_->build_read() : prover_->build(report.json);
        if (!built.error.empty()) return skip(n, id, "read back, it is refused: " + built.error);
        if (r.returned || built.record != text.utf8) {
            // A returned record is built as it was sent: no error flag, no count.
            const std::u32string& want = as_built(r, layout, built.record);
            if (built_chars_ != want) return skip(n, id, difference(want, built_chars_, parts_));
        }
        report_out_(report.json);
        ++out_.reports;
        file_errors(n, id, r, layout, &report);
    }

    // The fields of a layout whose content is not required, found once a layout.
    using OpenField = std::pair<const FieldLayout*, checks::Content>;
    const std::vector<OpenField>& open_fields(const RecordLayout& layout) {
        auto it = open_.find(&layout);
        if (it != open_.end()) return it->second;
        std::vector<OpenField> fields;
        for (const FieldLayout& f : layout.fields)
            if (const checks::Content c = checks::content_of(layout, f); c != checks::Content::Required)
                fields.emplace_back(&f, c);
        return open_.emplace(&layout, std::move(fields)).first->second;
    }

    // The record as it must come out: a returned record as it was sent (no
    // error flag, no count), and where the descriptions leave a field free
    // or hold a reserve in its basic setting, what tamrel writes there.
    // Compared as characters: the built record is widened (`built_chars_`).
    const std::u32string& as_built(const checks::ReturnedLine& r, const RecordLayout& layout,
                                   const std::string& built) {
        want_.assign(r.record);
        if (r.returned)
            for (const FieldLayout* f : {checks::error_flag_field(layout), checks::error_count_field(layout)})
                if (f && f->pos <= want_.size()) want_[f->pos - 1u] = U'0';
        checks::decode(built, checks::FileEncoding::Utf8, built_chars_);
        if (built_chars_.size() != want_.size()) return want_;
        for (const checks::Part& p : parts_)
            for (const auto& [f, content] : open_fields(*p.layout)) {
                const std::size_t at = p.at + f->pos - 1u;
                const std::u32string_view text = std::u32string_view(want_).substr(at, f->len);
                const bool basic = text.find_first_not_of(U' ') == std::u32string_view::npos ||
                                   text.find_first_not_of(U'0') == std::u32string_view::npos;
                if (content == checks::Content::Free || basic) want_.replace(at, f->len, built_chars_, at, f->len);
            }
        return want_;
    }

    void file_errors(std::size_t n, const std::string& id, const checks::ReturnedLine& r, const RecordLayout& layout,
                     const ReadReport* report) {
        if (r.errors.empty()) return;
        const ordered_json keys = report ? report_keys(report->json) : ordered_json::object();
        for (const checks::ReturnedError& e : r.errors) {
            ReturnedErrorEntry entry{n, report ? out_.reports : 0, id, keys, e, {}, {}};
            if (const FieldLayout* f = named_field(layout, e)) {
                entry.field = std::string(abbreviation(layout, *f));
                entry.property = std::string(f->name);
                entry.pos = f->pos;
                entry.len = f->len;
            }
            out_.errors.push_back(std::move(entry));
        }
    }

    ReadResult& out_;
    const std::function<void(const std::string&)>& report_out_;
    Frame frame_;
    std::string cls_;
    std::unique_ptr<Prover> prover_;
    std::vector<checks::Part> parts_;
    std::string first_created_;
    bool header_unproven_ = false;
    std::u32string built_chars_, want_;
    ReadReport report_;
    std::unordered_map<const RecordLayout*, std::vector<OpenField>> open_;
};

}  // namespace

ReadResult read_transfer(std::istream& in, const ReadOptions& options,
                         const std::function<void(const std::string& report)>& report) {
    // An XML report begins with its declaration, a fixed-width file with a record identifier.
    if (in.peek() == '<') return read_xml_report(in, options, report);
    ReadResult out;
    FileReader reader(out, report);
    checks::read_record_texts(
        in, [&](const checks::RecordText& line) { reader.line(line); }, options.encoding);
    reader.finish();
    return out;
}

ReadJob read_job(std::istream& in, const ReadOptions& options) {
    ReadJob out;
    ordered_json reports = ordered_json::array();
    out.result = read_transfer(in, options, [&](const std::string& r) { reports.push_back(ordered_json::parse(r)); });
    out.job = out.result.job;
    out.job["reports"] = std::move(reports);
    add_returned_errors(out.job, out.result);
    return out;
}

void add_returned_errors(ordered_json& job, const ReadResult& r) {
    if (r.errors.empty()) return;
    ordered_json& errors = job["returned_errors"] = ordered_json::array();
    for (const ReturnedErrorEntry& e : r.errors) errors.push_back(to_json(e));
}

std::string describe(const SkippedRecord& s) {
    return "record " + std::to_string(s.record) + " " + s.id + ": " + s.why;
}

ordered_json to_json(const ReturnedErrorEntry& e) {
    ordered_json j{{"record", e.record}, {"report", e.report}, {"id", e.id}};
    if (!e.keys.empty()) j["keys"] = e.keys;
    j["number"] = e.error.number;
    j["text"] = e.error.text;
    if (!e.property.empty()) {
        j["field"] = e.field;
        j["pos"] = e.pos;
        j["len"] = e.len;
        j["property"] = e.property;
    }
    return j;
}

}  // namespace tamrel::readback
