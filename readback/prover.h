// What proves a report read back: the job's frame values as read, and the
// class's runner, which builds each report again so that its record can be
// compared with the file's. Shared by the fixed-width and the XML reader.
#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "call/call_protocol.h"
#include "call/procedure.h"
#include "call/report_runner.h"
#include "readback/procedure_readers.h"
#include "run/job.h"

namespace tamrel::readback {

// The frame records as read: their values, and their text to prove them by.
struct Frame {
    std::string vosz, dsko;  // UTF-8, without error blocks
    nlohmann::ordered_json head = nlohmann::ordered_json::object();
    nlohmann::ordered_json dskoData = nlohmann::ordered_json::object();
    std::string voszDate, dskoCreated;
};

// The values of enmVerfahren a header may have been written with.
inline constexpr std::int32_t kVerfahren[] = {0, 1, 2, 4};

// The frame values of the job, from the header, the communication record
// and the first data record's head.
nlohmann::ordered_json job_head(std::string_view cls, const Frame& f, const RecordFrame* first, std::int32_t verfahren);

class Prover {
public:
    Prover(const ProcedureDescriptor& p, nlohmann::ordered_json head);
    ~Prover();
    // The record the report builds, or the error that stops it.
    struct Built {
        std::string record, error;
    };
    Built build(const std::string& report);
    // The record of the object read into runner() (ProcedureReader::read).
    Built build_read();
    ReportRunner& runner() { return *runner_; }
    // The frame records the job builds; empty where the class refuses it.
    std::string vosz();
    std::string dsko();
    const nlohmann::ordered_json& head() const { return head_; }

private:
    template <class F>
    Built attempt(F&& build);

    const ProcedureDescriptor& procedure_;
    nlohmann::ordered_json head_;
    cli::Job job_;
    std::unique_ptr<CallSession> session_;
    std::unique_ptr<ReportRunner> runner_;
};

// The report's own time (own_time) set in its JSON.
void give_own_time(ReadReport& report, std::string_view file_created);

}  // namespace tamrel::readback
