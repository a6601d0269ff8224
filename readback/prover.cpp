#include "readback/prover.h"

namespace tamrel::readback {
namespace {

using nlohmann::ordered_json;

// "20240301101112" as the job's date "2024-03-01T10:11:12"; empty for
// anything else.
std::string iso_stamp(std::string_view s) {
    if (s.size() != 14 || s.find_first_not_of("0123456789") != std::string_view::npos || s == "00000000000000")
        return {};
    std::string out;
    for (std::size_t i = 0; i < 14; i += 2) {
        if (i == 4 || i == 6) out += '-';
        if (i == 8) out += 'T';
        if (i == 10 || i == 12) out += ':';
        out.append(s.substr(i, 2));
    }
    return out;
}

template <class F>
std::string guarded(F&& f) {
    try {
        return f();
    } catch (const std::exception&) {
        return {};
    }
}

}  // namespace

ordered_json job_head(std::string_view cls, const Frame& f, const RecordFrame* first, std::int32_t verfahren) {
    ordered_json j = ordered_json::object();
    j["class"] = cls;
    for (const auto& [k, v] : f.head.items()) j[k] = v;
    const std::string& stamp = !f.dskoCreated.empty() || !first ? f.dskoCreated : first->created;
    const std::string created = iso_stamp(stamp);
    if (!f.voszDate.empty() && (created.empty() || f.voszDate != stamp.substr(0, 8))) j["strDatum"] = f.voszDate;
    j["enmVerfahren"] = verfahren;
    if (!created.empty()) {
        j["datDate"] = created;
        j["now"] = created;
    }
    if (!f.dsko.empty()) j["udtDSKOData"] = f.dskoData;
    if (first) j["udtDatensatzData"] = ordered_json::parse(to_json(first->datensatz));
    return j;
}

Prover::Prover(const ProcedureDescriptor& p, ordered_json head) : procedure_(p), head_(std::move(head)) {
    ordered_json j = head_;
    j["reports"] = ordered_json::array();
    job_ = cli::parse_job_text(j.dump(), "the job read", ".");
    session_ = std::make_unique<CallSession>(job_.now.is_null() ? nullptr : &job_.now, nullptr);
    const RunnerSettings settings{&session_->host(), job_.datensatz, job_.frame.enmVerfahren, job_.frame.datDate};
    runner_ = procedure_.runner(procedure_, settings);
}

Prover::~Prover() = default;

template <class F>
Prover::Built Prover::attempt(F&& build) {
    Built b;
    try {
        b.record = build();
    } catch (const std::exception& e) {
        b.error = e.what();
    }
    session_->clear_log();
    return b;
}

Prover::Built Prover::build(const std::string& report) {
    return attempt([&] {
        runner_->read_text(report);
        return runner_->data();
    });
}

Prover::Built Prover::build_read() {
    return attempt([&] { return runner_->data(); });
}

std::string Prover::vosz() {
    FrameValues v = job_.frame;
    return guarded([&] { return procedure_.GenVOSZ(session_->host(), v); });
}

std::string Prover::dsko() {
    FrameValues v = job_.frame;
    return guarded([&] { return procedure_.GenDSKO(session_->host(), v); });
}

void give_own_time(ReadReport& report, std::string_view file_created) {
    const std::string time = own_time(report.frame, file_created);
    if (time.empty()) return;
    nlohmann::json j = nlohmann::json::parse(report.json);
    j[std::string(report.frame.createdFrom)] = time;
    report.json = j.dump();
}

}  // namespace tamrel::readback
