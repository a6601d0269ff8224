// tamrel read: a file read back into its job, and the job generated again,
// gives the file byte for byte (frame records included), for every example
// and for many random variants of their reports; a returned file's error
// blocks are read with the report and the property they concern, and
// tamrel check takes the returned file as it is.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>

#include <nlohmann/json.hpp>

#include "readback/transfer_reading.h"
#include "reader/transfer_file.h"
#include "run/generate.h"
#include "tests/example_jobs.h"
#include "tests/mutator.h"

namespace {

using nlohmann::json;
using namespace tamrel::testing;

// The transfer file of a job (ISO-8859-1), or empty where no report could be built.
std::string generate(const json& job, bool check = true) {
    std::string out;
    tamrel::cli::GenerateOptions o;
    o.job = "job";
    o.jobText = job.dump();
    o.outputText = &out;
    o.keepGoing = true;
    o.noCheck = !check;
    tamrel::cli::generate(o, [](const std::string&) {});
    return out;
}

struct Read {
    json job;
    tamrel::readback::ReadResult result;
};

Read read(const std::string& file) {
    std::istringstream in(file);
    json reports = json::array();
    Read r;
    r.result = tamrel::readback::read_transfer(
        in, {}, [&](const std::string& report) { reports.push_back(json::parse(report)); });
    r.job = json::parse(r.result.job.dump());
    r.job["reports"] = reports;
    return r;
}

std::string skipped(const Read& r) {
    std::string s;
    for (const auto& k : r.result.skipped) s += describe(k) + "\n";
    return s;
}

TEST(ReadBack, EveryExampleGivesItsFileAgain) {
    for (const auto& e : example_jobs()) {
        SCOPED_TRACE(e.path.filename().string());
        const std::string file = generate(e.job);
        ASSERT_FALSE(file.empty());
        const Read r = read(file);
        ASSERT_EQ(skipped(r), "");
        EXPECT_EQ(r.result.reports, e.job["reports"].size());
        EXPECT_TRUE(generate(r.job) == file) << "the job read gives another file: " << r.job.dump(1);
    }
}

TEST(ReadBack, RandomReportsOfEveryReadProcedureComeOutAgain) {
    // 1,000 reports a procedure, shared among its examples.
    constexpr int kVariants = 1000;
    std::map<std::string, int> examples;
    for (const auto& e : example_jobs()) ++examples[std::string(e.info->cls)];
    for (const auto& e : example_jobs()) {
        SCOPED_TRACE(e.path.filename().string());
        Mutator mutate(static_cast<unsigned>(std::hash<std::string>{}(e.path.filename().string())));
        json job = e.job;
        job["reports"] = json::array();
        const json& reports = e.job["reports"];
        const int variants = (kVariants + examples[std::string(e.info->cls)] - 1) / examples[std::string(e.info->cls)];
        for (int v = 0; v < variants; ++v) {
            json report = mutate.vary(reports[static_cast<std::size_t>(v) % reports.size()]);
            // The XML report's time stamp drops what is no character of a
            // date: a creation date that is no date is not read back there.
            if (e.info->xml() && report.contains("ErstellDatum") && !report["ErstellDatum"].is_string())
                report.erase("ErstellDatum");
            if (e.info->xml() && report.contains("ErstellDatum") &&
                report["ErstellDatum"].get<std::string>().find_first_not_of("0123456789") != std::string::npos)
                report.erase("ErstellDatum");
            job["reports"].push_back(std::move(report));
        }
        // Built as given (no checks): hostile values too, where the builder takes them.
        const std::string file = generate(job, false);
        ASSERT_FALSE(file.empty());
        const Read r = read(file);
        const std::string left = skipped(r);
        if (!left.empty()) {
            ADD_FAILURE() << left.substr(0, 400);
            continue;
        }
        EXPECT_GT(r.result.reports, 0u);
        EXPECT_TRUE(generate(r.job, false) == file) << "the job read gives another file";
    }
}

// A DEUEV file returned with two errors on its first report and the whole
// file rejected after its VOSZ: check takes it, read maps each error.
TEST(ReadBack, ReturnedErrorsNameTheirReportAndProperty) {
    const auto examples = example_jobs();
    const auto e = std::find_if(examples.begin(), examples.end(),
                                [](const ExampleJob& x) { return x.path.filename() == "deuev-registration.json"; });
    ASSERT_NE(e, examples.end());
    const std::string sent = generate(e->job);
    auto dbfe = [](std::string number, std::string text) {
        number.resize(7, ' ');
        text.resize(64, ' ');
        return "DBFE" + number + " " + text;
    };
    std::vector<std::string> lines;
    std::istringstream in(sent);
    for (std::string l; std::getline(in, l);) lines.push_back(l);
    lines[0] += dbfe("VOSZa52", "Datei abgewiesen");
    lines[2].replace(61, 2, "12");
    lines[2] += dbfe("DSME060", "VSNR ungueltig") + dbfe("DSME107", "BBNR-VU nicht vorhanden");
    std::string returned;
    for (const auto& l : lines) returned += l + "\n";

    std::istringstream check_in(returned);
    EXPECT_TRUE(tamrel::checks::check_transfer_file(check_in).findings.empty());

    const Read r = read(returned);
    EXPECT_EQ(skipped(r), "");
    json errors = json::array();
    for (const auto& x : r.result.errors) errors.push_back(json::parse(tamrel::readback::to_json(x).dump()));
    EXPECT_EQ(errors, json::parse(R"([
      {"record":1,"report":0,"id":"VOSZ","number":"VOSZa52","text":"Datei abgewiesen"},
      {"record":3,"report":1,"id":"DSME","keys":{"Vorgang.Versicherungsnummer":"65170839J003",
       "Vorgang.Aktenzeichen":"P-0001","Laufnummer":1},"number":"DSME060","text":"VSNR ungueltig",
       "field":"VSNR","pos":64,"len":12,"property":"Vorgang.Versicherungsnummer"},
      {"record":3,"report":1,"id":"DSME","keys":{"Vorgang.Versicherungsnummer":"65170839J003",
       "Vorgang.Aktenzeichen":"P-0001","Laufnummer":1},"number":"DSME107","text":"BBNR-VU nicht vorhanden",
       "field":"BBNRVU","pos":78,"len":15,"property":"Vorgang.Arbeitgeber.Betriebsnummer"}])"));
    // The job read is the job sent: it gives the file as it was sent.
    EXPECT_TRUE(generate(r.job) == sent);
}

}  // namespace
