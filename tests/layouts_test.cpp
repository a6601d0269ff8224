// The declared record layouts and the files read by them: each layout covers
// its record without gap or overlap; each frame record that the builders make
// holds, in each declared field, exactly the encoder's output for the value
// that field names; every example's file passes tamrel check's rules; and
// files broken in each way are found.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <sstream>

#include "checks/transfer_file.h"
#include "cli/transfer.h"
#include "core/frame_layouts.h"
#include "core/frames.h"
#include "core/text_fields.h"
#include "tests/example_jobs.h"
#include "tests/test_support.h"

using namespace tamrel;

namespace {

const RecordLayout* const kFrameLayouts[] = {&layouts::kVOSZ, &layouts::kDSKO, &layouts::kNCSZ};

TEST(Layouts, CoverTheirRecordsWithoutGapOrOverlap) {
    for (const RecordLayout* l : kFrameLayouts) {
        std::uint16_t next = 1;
        for (const FieldLayout& f : l->fields) {
            EXPECT_EQ(f.pos, next) << l->id << " " << f.name;
            next = static_cast<std::uint16_t>(f.pos + f.len);
        }
        EXPECT_EQ(next - 1, l->length) << l->id;
    }
}

std::u32string chars(const std::string& s) {
    std::istringstream in(s);
    std::u32string first;
    checks::read_records(in, [&](std::u32string_view r) {
        if (first.empty()) first = r;
    });
    return first;
}

// Every field that names a value holds that value's encoding.
void expect_fields(const RecordLayout& l, const std::string& record,
                   const std::map<std::string_view, std::string>& values) {
    const std::u32string r = chars(record);
    ASSERT_EQ(r.size(), l.length) << record;
    for (const FieldLayout& f : l.fields) {
        const std::string slice = checks::field_text(r, f);
        bool filled = false;
        if (f.kind == FieldKind::Literal) {
            EXPECT_EQ(slice, f.literal) << l.id << " " << f.name;
        } else if (auto v = values.find(f.name); v != values.end()) {
            const std::string want = f.kind == FieldKind::N ? mlGen::StrToN(v->second, f.len, filled)
                                                            : mlGen::StrToAn(v->second, f.len, filled);
            EXPECT_EQ(slice, want) << l.id << " " << f.name << " of \"" << v->second << "\"";
        }
    }
}

TEST(Layouts, AgreeWithTheFrameBuilders) {
    std::mt19937 random(20261124);
    const char* texts[] = {"98765432",
                           "",
                           "12345671",
                           "Müller & Söhne GmbH",
                           "ABC",
                           "1",
                           "a very long name of a firm that "
                           "does not fit its field at all"};
    auto pick = [&] { return std::string(texts[random() % std::size(texts)]); };
    const Date date{2024, 3, 1, 10, 11, 12};
    for (int round = 0; round < 200; ++round) {
        const std::string sender = pick(), receiver = pick(), file = std::to_string(random() % 1000), firm = pick();
        std::string datum;
        expect_fields(layouts::kVOSZ, mlGen::GenVOSZ("AGDEU", sender, receiver, file, firm, datum, date, "01"),
                      {{"strBNRAb", sender}, {"strBNREm", receiver}, {"strFileNr", file}, {"strFirma", firm}});
        const std::string count = std::to_string(random() % 100000);
        expect_fields(layouts::kNCSZ, mlGen::GenNCSZ("AGDEU", sender, receiver, file, count, date, "01"),
                      {{"strBNRAb", sender}, {"strBNREm", receiver}, {"strFileNr", file}, {"strCount", count}});
        DSKOData d;
        d.strBNRAb = sender, d.strBNREm = receiver, d.strMicroSec = std::to_string(random() % 999999);
        d.strProdID = pick(), d.strModID = pick(), d.strName1 = firm, d.strName2 = pick(), d.strName3 = pick();
        d.strStrasse = pick(), d.strHausNr = pick(), d.strPLZ = pick(), d.strOrt = pick();
        d.strAnGeschl = "W", d.strAnName = pick(), d.strAnTel = pick(), d.strAnFax = pick(), d.strAnEMail = pick();
        DSKOData copy = d;
        expect_fields(layouts::kDSKO, mlGen::GenDSKO(copy, "DEUEV", date),
                      {{"strBNRAb", d.strBNRAb},
                       {"strBNREm", d.strBNREm},
                       {"strMicroSec", d.strMicroSec},
                       {"causer (strBNRAb)", d.strBNRAb},
                       {"strProdID", d.strProdID},
                       {"strModID", d.strModID},
                       {"strName1", d.strName1},
                       {"strName2", d.strName2},
                       {"strName3", d.strName3},
                       {"strPLZ", d.strPLZ},
                       {"strOrt", d.strOrt},
                       {"strStrasse", d.strStrasse},
                       {"strHausNr", d.strHausNr},
                       {"strAnGeschl", d.strAnGeschl},
                       {"strAnName", d.strAnName},
                       {"strAnTel", d.strAnTel},
                       {"strAnFax", d.strAnFax},
                       {"strAnEMail", d.strAnEMail},
                       {"reserve", ""}});
    }
}

// An example job's whole file, as tamrel generate writes it (UTF-8).
std::string example_file(const tamrel::testing::ExampleJob& e) {
    const cli::Job job = cli::parse_job(e.job, "job", ".");
    cli::ReportSource source(job.reports);
    cli::TransferSettings settings;
    settings.encoding = cli::Encoding::Utf8;
    cli::StringSink out;
    cli::write_transfer(job, source, settings, out, nullptr);
    return out.text;
}

std::string findings(const std::string& file) {
    std::string all;
    std::istringstream in(file);
    for (const auto& f : checks::check_transfer_file(in).findings) all += checks::describe(f) + "\n";
    return all;
}

TEST(TransferFiles, EveryExampleFilePassesTheChecks) {
    for (const auto& e : tamrel::testing::example_jobs()) {
        if (e.info->xml()) continue;
        EXPECT_EQ(findings(example_file(e)), "") << e.path;
    }
}

TEST(TransferFiles, BrokenFilesAreFound) {
    const auto jobs = tamrel::testing::example_jobs();
    const auto it = std::find_if(jobs.begin(), jobs.end(),
                                 [](const auto& e) { return e.path.filename() == "deuev-registration.json"; });
    ASSERT_NE(it, jobs.end());
    const std::string good = example_file(*it);
    std::vector<std::string> lines;
    for (std::size_t at = 0, end; (end = good.find('\n', at)) != std::string::npos; at = end + 1)
        lines.push_back(good.substr(at, end - at));
    ASSERT_EQ(lines.size(), 5u);
    auto join = [](std::vector<std::string> l) {
        std::string s;
        for (const auto& x : l) s += x + "\r\n";  // CR LF is read as well as LF
        return s;
    };
    struct Case {
        const char* what;
        std::function<void(std::vector<std::string>&)> change;
        const char* want;
    };
    const Case cases[] = {
        {"as written", [](auto&) {}, ""},
        {"no trailer", [](auto& l) { l.pop_back(); },
         "record 4 DSME: error FILE-LAST the file does not end with NCSZ\n"},
        {"no header", [](auto& l) { l.erase(l.begin()); },
         "record 1 DSKO: error FILE-FIRST the file does not begin with VOSZ\n"
         "record 1 DSKO: error FILE-FRAME a frame record (VOSZ, DSKO, NCSZ) in the wrong place\n"
         "record 2 DSME: error FILE-SECOND VOSZ is not followed by DSKO\n"
         "record 4 NCSZ strCount (pos 54-61) \"00000003\": error FILE-COUNT the NCSZ count does not match the "
         "records of the file\n"},
        {"a report removed", [](auto& l) { l.erase(l.begin() + 2); },
         "record 4 NCSZ strCount (pos 54-61) \"00000003\": error FILE-COUNT the NCSZ count does not match the "
         "records of the file\n"},
        {"another receiver in the trailer", [](auto& l) { l[4].replace(24, 8, "09912342"); },
         "record 5 NCSZ strBNREm (pos 25-39) \"09912342\": error FILE-PARTIES sender or receiver differs from the "
         "VOSZ's\n"},
        {"a receiver with a wrong check digit throughout",
         [](auto& l) {
             for (std::size_t i : {0u, 1u, 4u}) l[i].replace(24, 8, "12345678");
         },
         "record 1 VOSZ strBNREm (pos 25-39) \"12345678\": error BNR-CHECKDIGIT establishment number: wrong check "
         "digit\n"
         "record 2 DSKO strBNREm (pos 25-39) \"12345678\": error BNR-CHECKDIGIT establishment number: wrong check "
         "digit\n"
         "record 5 NCSZ strBNREm (pos 25-39) \"12345678\": error BNR-CHECKDIGIT establishment number: wrong check "
         "digit\n"},
        {"a header one character short", [](auto& l) { l[0].pop_back(); },
         "record 1 VOSZ \"104 instead of 105\": error RECORD-LENGTH the record's length is wrong\n"},
        {"letters in the file number, an impossible date, a wrong version",
         [](auto& l) {
             l[0].replace(47, 6, "00000A");
             l[0].replace(39, 8, "20241399");
             l[4].replace(61, 2, "02");
         },
         "record 1 VOSZ strDatum (pos 40-47) \"20241399\": error DATE not a calendar date (YYYYMMDD)\n"
         "record 1 VOSZ strFileNr (pos 48-53) \"00000A\": error DIGITS expected digits of the field's length\n"
         "record 5 NCSZ version (pos 62-63) \"02\": error FIELD-LITERAL a fixed field content is wrong\n"},
    };
    for (const Case& c : cases) {
        std::vector<std::string> l = lines;
        c.change(l);
        EXPECT_EQ(findings(join(l)), c.want) << c.what;
    }
    EXPECT_THROW(findings(""), std::runtime_error);
    EXPECT_THROW(findings("<?xml version=\"1.0\"?>\n"), std::runtime_error);
}

}  // namespace
