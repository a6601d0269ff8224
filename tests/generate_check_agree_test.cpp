// Whatever tamrel generate writes with exit code 0, tamrel check accepts:
// seeded hostile variants of every example's reports and frame values go
// through the whole transfer run (the checks before each record, the
// records read back), and the file written is checked as a file from
// outside would be. TAMREL_AGREE_COUNT sets the variants per example (the
// fuzz step runs many more).
#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>

#include <nlohmann/json.hpp>

#include "checks/rules.h"
#include "reader/transfer_file.h"
#include "run/job.h"
#include "run/transfer.h"
#include "tests/example_jobs.h"
#include "tests/hostile.h"

namespace {

using nlohmann::json;
using namespace tamrel;

std::size_t variants_per_example() {
    const char* n = std::getenv("TAMREL_AGREE_COUNT");
    return n ? std::strtoul(n, nullptr, 10) : 150;
}

// One of the frame values a job may give, varied.
json hostile_frame(json job, tamrel::testing::Hostile& h, std::size_t i) {
    static const char* const keys[] = {"strBNRAb", "strBNREm", "strFileNr", "strFirma", "strDatum"};
    const std::size_t k = i % 7;
    if (k < std::size(keys))
        job[keys[k]] = h.text(job.value(keys[k], ""));
    else if (const char* obj = k == 5 ? "udtDSKOData" : "udtDatensatzData"; job.contains(obj))
        job[obj] = h.vary(job[obj]);
    return job;
}

// Every error check finds in `file`, one a line.
std::string errors_in(const std::string& file, checks::FileEncoding encoding) {
    std::istringstream in(file);
    std::string all;
    for (const checks::FileFinding& f : checks::check_transfer_file(in, encoding).findings)
        if (f.rule->severity == checks::Severity::Error) all += checks::describe(f) + "\n";
    return all;
}

TEST(GenerateAndCheck, AgreeOnHostileReportsAndFrameValues) {
    const std::size_t count = variants_per_example();
    std::size_t written = 0, refused = 0, reports = 0;
    for (const tamrel::testing::ExampleJob& e : tamrel::testing::example_jobs()) {
        if (e.info->xml()) continue;  // check reads fixed-width files
        tamrel::testing::Hostile h(20261125);
        for (std::size_t i = 0; i < count; ++i) {
            json variant = i % 3 == 0 ? hostile_frame(e.job, h, i / 3) : e.job;
            // Most reports get a few bad values; some are varied throughout.
            for (json& r : variant["reports"]) r = i % 5 == 4 ? h.vary(r) : h.vary_some(r, 1 + i % 3);
            cli::Job job;
            try {
                job = cli::parse_job(variant, "job", ".");
            } catch (const std::exception&) {
                ++refused;  // a job of the wrong types: exit code 2, nothing written
                continue;
            }
            for (const auto encoding : {cli::Encoding::Latin1, cli::Encoding::Utf8}) {
                cli::ReportSource source(job.reports);
                cli::TransferSettings settings;
                settings.encoding = encoding;
                settings.keepGoing = true;
                settings.transliterate = i % 2 == 0;
                cli::StringSink out, protocol;
                try {
                    reports += cli::write_transfer(job, source, settings, out,
                                                   e.info->protoMethod.empty() ? nullptr : &protocol)
                                   .written;
                } catch (const cli::ReportFailure&) {
                    ++refused;  // a frame value refused: exit code 1, nothing written
                    continue;
                }
                ++written;
                const std::string found = errors_in(out.text, cli::file_encoding(encoding));
                ASSERT_EQ(found, "") << e.path.filename() << " variant " << i << ":\n"
                                     << variant.dump().substr(0, 4000);
            }
        }
    }
    RecordProperty("files", static_cast<int>(written));
    RecordProperty("refused", static_cast<int>(refused));
    RecordProperty("reports", static_cast<int>(reports));
    // The variants reach both outcomes, and many reports get through.
    EXPECT_GT(written, count);
    EXPECT_GT(refused, count / 10);
    EXPECT_GT(reports, count);
}

// Every value of every example report, one at a time, replaced by each
// of a few values that break a field of any kind: whatever is written is
// accepted by check. Where the random variants may miss a field, this
// reaches each one.
TEST(GenerateAndCheck, AgreeOnEachValueOfEveryExampleReplaced) {
    const json breakers[] = {"2023-11-15", "abc", "-1", "\u20ac", "1234567890123", "  ", -1, -2147483648LL, 99999};
    std::size_t runs = 0;
    for (const tamrel::testing::ExampleJob& e : tamrel::testing::example_jobs()) {
        if (e.info->xml()) continue;
        const json flat = e.job["reports"][0].flatten();
        for (const auto& [pointer, original] : flat.items()) {
            if (!original.is_primitive() || original.is_null()) continue;
            for (const json& value : breakers) {
                if (value.is_string() != original.is_string()) continue;
                json variant = e.job;
                variant["reports"] = json::array({e.job["reports"][0]});
                variant["reports"][0][json::json_pointer(pointer)] = value;
                const std::string what = e.path.filename().string() + " " + pointer + " = " + value.dump();
                cli::Job job;
                try {
                    job = cli::parse_job(variant, "job", ".");
                } catch (const std::exception&) {
                    continue;
                }
                cli::ReportSource source(job.reports);
                cli::TransferSettings settings;
                settings.keepGoing = true;
                cli::StringSink out;
                cli::write_transfer(job, source, settings, out, nullptr);
                ++runs;
                EXPECT_EQ(errors_in(out.text, checks::FileEncoding::Latin1), "") << what;
            }
        }
    }
    EXPECT_GT(runs, 1000u);
}

}  // namespace
