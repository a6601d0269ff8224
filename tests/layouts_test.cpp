// The declared record layouts and the files read by them: each layout covers
// its record without gap or overlap; each record and block that the builders
// make (frames with random values, data records for every example report
// and random variants of it) holds, in each declared field, exactly the
// encoder's output for the value that field names; every example's file
// passes tamrel check's rules; and files broken in each way are found.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <regex>
#include <set>
#include <sstream>

#include "call/call_protocol.h"
#include "core/frame_layouts.h"
#include "core/frames.h"
#include "core/text_fields.h"
#include "reader/field_kinds.h"
#include "reader/line_walk.h"
#include "reader/record_layouts.h"
#include "reader/transfer_file.h"
#include "run/transfer.h"
#include "tests/encoder_forms.h"
#include "tests/example_jobs.h"
#include "tests/mutator.h"
#include "tests/test_support.h"

using namespace tamrel;

namespace {

// Every layout reachable from the records: its forms, blocks and entries.
void reachable(const RecordLayout& l, std::set<const RecordLayout*>& all) {
    if (!all.insert(&l).second) return;
    for (const RecordLayout* f : l.forms) reachable(*f, all);
    if (l.entry) reachable(*l.entry, all);
    for (const FieldLayout& f : l.fields)
        if (f.block) reachable(*f.block, all);
}

TEST(Layouts, CoverTheirRecordsWithoutGapOrOverlap) {
    std::set<const RecordLayout*> all;
    for (const RecordLayout* l : checks::record_layouts()) reachable(*l, all);
    EXPECT_GT(all.size(), 70u);
    for (const RecordLayout* l : all) {
        std::uint16_t next = 1;
        for (const FieldLayout& f : l->fields) {
            EXPECT_EQ(f.pos, next) << l->id << " " << f.name;
            next = static_cast<std::uint16_t>(f.pos + f.len);
        }
        EXPECT_EQ(next - 1, l->length) << l->id;
    }
}

// A name that is a property path ("Vorgang.Versicherungsnummer"), not a
// description of a computed field ("file reference (strVersion, Laufnummer)").
bool is_path(std::string_view name) {
    static const std::regex path(R"([A-Za-z][A-Za-z0-9]*(\.[A-Za-z][A-Za-z0-9]*)*)");
    return std::regex_match(name.begin(), name.end(), path);
}

// The value a path names: in the job's record identification for
// "DatensatzData.", else in the report; a list on the way is taken at the
// block's item. Null where the report leaves it out.
nlohmann::json lookup(const nlohmann::json& job, const nlohmann::json& report, std::string_view path,
                      std::size_t item) {
    const nlohmann::json* at = &report;
    if (path.starts_with("DatensatzData.")) at = &job["udtDatensatzData"], path.remove_prefix(14);
    for (std::size_t from = 0; at;) {
        const std::size_t dot = path.find('.', from);
        const std::string key(path.substr(from, dot - from));
        if (at->is_array()) at = item - 1 < at->size() ? &(*at)[item - 1] : nullptr;
        at = at && at->is_object() && at->contains(key) ? &(*at)[key] : nullptr;
        if (dot == std::string_view::npos) break;
        from = dot + 1;
    }
    return at ? *at : nlohmann::json();
}

// What the field's encoder makes of the value.
std::string encoded(const FieldLayout& f, const nlohmann::json& v) {
    if (f.kind == FieldKind::Flag) return v.is_boolean() && v.get<bool>() ? "J" : "N";
    const std::string text = v.is_null()      ? std::string()
                             : v.is_string()  ? v.get<std::string>()
                             : v.is_boolean() ? std::string(v.get<bool>() ? "-1" : "0")
                                              : v.dump();
    bool filled = false;
    switch (f.kind) {
        case FieldKind::N:
        case FieldKind::Date:
            return mlGen::StrToN(text, f.len, filled);
        case FieldKind::Amount:
            return mlGen::StrToPB(text, f.len - f.decimals, f.decimals, filled);
        case FieldKind::SignedAmount:
            return mlGen::StrToBG(text, f.len - 1 - f.decimals, f.decimals, filled);
        default:
            return mlGen::StrToAn(text, f.len, filled);
    }
}

// Every field that names a value holds that value's encoding.
void expect_fields(const RecordLayout& l, const std::string& record,
                   const std::map<std::string_view, std::string>& values) {
    const std::u32string r = tamrel::testing::chars(record);
    ASSERT_EQ(r.size(), l.length) << record;
    for (const FieldLayout& f : l.fields) {
        const std::string slice = checks::field_text(r, f);
        if (f.kind == FieldKind::Literal) {
            EXPECT_EQ(slice, f.literal) << l.id << " " << f.name;
        } else if (auto v = values.find(f.name); v != values.end()) {
            EXPECT_EQ(slice, encoded(f, v->second)) << l.id << " " << f.name << " of \"" << v->second << "\"";
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
                           ("a very long name of a firm that "
                           "does not fit its field at all")};
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

TEST(Layouts, AgreeWithTheDataRecordBuilders) {
    constexpr int kVariants = 250;
    int records = 0, clean_records = 0;
    for (const auto& e : tamrel::testing::example_jobs()) {
        if (e.info->xml()) continue;
        tamrel::testing::Mutator mutate(static_cast<unsigned>(std::hash<std::string>{}(e.path.filename().string())));
        for (const nlohmann::json& report : e.job["reports"]) {
            for (int v = 0; v < kVariants; ++v) {
                const nlohmann::json variant = v == 0 ? report : mutate.vary(report);
                const nlohmann::json r = call(tamrel::testing::gen_data_request(e, variant));
                if (!r.contains("result")) continue;
                ++records;
                // What passes the data checks makes a record that passes the file checks.
                const nlohmann::json checked = call({{"class", std::string(e.info->cls)},
                                                     {"method", "Check"},
                                                     {"args", {{std::string(e.info->objParam), variant}}}});
                ASSERT_TRUE(checked.contains("out")) << checked.dump();
                bool clean = true;
                for (const auto& f : checked["out"]["findings"]) clean &= f["severity"] != "error";
                clean_records += clean;
                const std::u32string line = tamrel::testing::chars(r["result"].get<std::string>());
                const std::string where = e.path.filename().string() + " variant " + std::to_string(v);
                const RecordLayout* layout = checks::find_layout(line);
                ASSERT_NE(layout, nullptr) << where;
                checks::WalkProblem problem;
                const bool fits = checks::walk_line(
                    line, *layout,
                    [&](const checks::Part& p) {
                        for (const FieldLayout& f : p.layout->fields) {
                            const std::string text = checks::to_utf8(checks::slice(line, p, f));
                            const std::string field =
                                std::string(layout->id) + "/" + std::string(p.layout->id) + " " + std::string(f.name);
                            if (const checks::Rule* rule =
                                    clean ? checks::fault(checks::slice(line, p, f), f) : nullptr)
                                ADD_FAILURE() << rule->id << " in " << field << " \"" << text
                                              << "\" of a checked report, " << where << ": " << variant.dump();
                            if (f.kind == FieldKind::Literal) {
                                EXPECT_EQ(text, f.literal) << field << ", " << where;
                                continue;
                            }
                            if (!is_path(f.name) || f.announce != Announce::None) continue;
                            const nlohmann::json value = lookup(e.job, variant, f.name, p.item);
                            EXPECT_EQ(text, encoded(f, value)) << field << " of " << value << ", " << where;
                        }
                    },
                    problem);
                EXPECT_TRUE(fits) << problem.rule->id << " at character " << problem.at + 1 << ", " << where;
            }
        }
    }
    EXPECT_GT(records, 3000);
    EXPECT_GT(clean_records, 50);
}

// A value of the field's kind that shows in the field.
nlohmann::json sample(const FieldLayout& f) {
    switch (f.kind) {
        case FieldKind::Flag:
            return true;
        case FieldKind::Date:
        case FieldKind::DateOrBlank:
            return "20240131";
        case FieldKind::Vsnr:
            return "65170839J003";
        case FieldKind::Bnr:
            return "98765432";
        case FieldKind::N:
        case FieldKind::Amount:
        case FieldKind::SignedAmount:
            return "1";
        default:
            return f.len == 1 ? "X" : "X7";
    }
}

// Sets the value a path names (see lookup), making the objects on the way.
void set_path(nlohmann::json& job, nlohmann::json& report, std::string_view path, std::size_t item,
              const nlohmann::json& value) {
    nlohmann::json* at = &report;
    if (path.starts_with("DatensatzData.")) at = &job["udtDatensatzData"], path.remove_prefix(14);
    for (std::size_t from = 0;;) {
        if (at->is_array()) at = &(*at)[item - 1];
        const std::size_t dot = path.find('.', from);
        at = &(*at)[std::string(path.substr(from, dot - from))];
        if (dot == std::string_view::npos) break;
        from = dot + 1;
    }
    *at = value;
}

// Each field that names a property shows a value set on that property: a
// misspelt or misplaced name would otherwise only be compared with empty
// values where the examples leave the property out.
TEST(Layouts, EachNamedFieldShowsItsProperty) {
    std::map<const FieldLayout*, std::string> named;  // reached by an example, with where
    std::set<const FieldLayout*> shown;
    for (const auto& e : tamrel::testing::example_jobs()) {
        if (e.info->xml()) continue;
        const nlohmann::json& report = e.job["reports"][0];
        auto walk = [&](const tamrel::testing::ExampleJob& job, const nlohmann::json& r, auto&& each) {
            const nlohmann::json response = call(tamrel::testing::gen_data_request(job, r));
            if (!response.contains("result")) return;
            const std::u32string line = tamrel::testing::chars(response["result"].get<std::string>());
            checks::WalkProblem problem;
            checks::walk_line(
                line, *checks::find_layout(line),
                [&](const checks::Part& p) {
                    if (p.entry) return;
                    for (const FieldLayout& f : p.layout->fields) each(line, p, f);
                },
                problem);
        };
        std::vector<std::pair<const FieldLayout*, std::size_t>> fields;
        walk(e, report, [&](std::u32string_view, const checks::Part& p, const FieldLayout& f) {
            if (f.kind == FieldKind::Literal || f.announce != Announce::None || !is_path(f.name) || f.name == "reserve")
                return;
            fields.emplace_back(&f, p.item);
            named.emplace(&f, std::string(p.layout->id) + " " + std::string(f.name));
        });
        for (const auto& named_field : fields) {
            const FieldLayout* field = named_field.first;
            const std::size_t item = named_field.second;
            tamrel::testing::ExampleJob changed = e;
            nlohmann::json r = report;
            const nlohmann::json value =
                lookup(e.job, report, field->name, item).is_number() ? nlohmann::json(7) : sample(*field);
            set_path(changed.job, r, field->name, item, value);
            walk(changed, r, [&](std::u32string_view line, const checks::Part& p, const FieldLayout& f) {
                if (&f != field || p.item != item) return;
                const std::string text = checks::to_utf8(checks::slice(line, p, f));
                EXPECT_EQ(text, encoded(f, value)) << named[field] << ", " << e.path.filename();
                shown.insert(field);
            });
        }
    }
    EXPECT_GT(named.size(), 300u);
    for (const auto& [field, where] : named) EXPECT_TRUE(shown.count(field)) << where << " never generated";
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

// A date in another form, letters or a minus set on each property that a
// date or numeric field names, also where no example gives it: the
// checks refuse the report, or what is written passes tamrel check. No
// such field can be left out of the checks unnoticed.
TEST(Layouts, ABreakingValueOnEachNamedFieldNeverReachesTheFile) {
    std::size_t tried = 0;
    for (const auto& e : tamrel::testing::example_jobs()) {
        if (e.info->xml()) continue;
        const nlohmann::json& report = e.job["reports"][0];
        const nlohmann::json response = call(tamrel::testing::gen_data_request(e, report));
        const std::u32string line = tamrel::testing::chars(response["result"].get<std::string>());
        std::vector<std::pair<const FieldLayout*, std::size_t>> fields;
        checks::WalkProblem problem;
        checks::walk_line(
            line, *checks::find_layout(line),
            [&](const checks::Part& p) {
                if (p.entry) return;
                for (const FieldLayout& f : p.layout->fields)
                    if ((f.kind == FieldKind::Date || f.kind == FieldKind::DateOrBlank || f.kind == FieldKind::N) &&
                        f.announce == Announce::None && is_path(f.name) && f.name != "reserve")
                        fields.emplace_back(&f, p.item);
            },
            problem);
        for (const auto& [field, item] : fields) {
            const bool number = lookup(e.job, report, field->name, item).is_number();
            const nlohmann::json breakers[] = {number ? nlohmann::json(-1) : nlohmann::json("2023-11-15"),
                                               number ? nlohmann::json(2147483647) : nlohmann::json("1A")};
            for (const nlohmann::json& value : breakers) {
                tamrel::testing::ExampleJob changed = e;
                nlohmann::json r = report;
                set_path(changed.job, r, field->name, item, value);
                changed.job["reports"] = nlohmann::json::array({r});
                std::string file;
                try {
                    file = example_file(changed);
                } catch (const std::exception&) {
                    continue;  // refused before anything is written
                }
                ++tried;
                EXPECT_EQ(findings(file), "") << e.path.filename() << " " << field->name << " = " << value.dump();
            }
        }
    }
    EXPECT_GT(tried, 10u);
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
        // The registration: DSME (559 characters), DBME, DBNA, DBGB, DBAN, DBKS.
        {"a wrong check digit in the insurance number", [](auto& l) { l[2].replace(74, 1, "4"); },
         "record 3 DSME Vorgang.Versicherungsnummer (pos 64-75) \"65170839J004\": error VSNR-CHECKDIGIT insurance "
         "number: wrong check digit\n"},
        {"an impossible begin and a flag that is neither J nor N in DBME",
         [](auto& l) {
             l[2].replace(559 + 6, 8, "20241399");
             l[2].replace(559 + 4, 1, "X");
         },
         "record 3 DSME/DBME Storno (pos 5-5) \"X\": error FLAG expected J or N\n"
         "record 3 DSME/DBME Beginn (pos 7-14) \"20241399\": error DATE not a calendar date (YYYYMMDD)\n"},
        {"a block announced but not sent", [](auto& l) { l[2][174] = 'J'; },
         "record 3 DSME DBEU (pos 175-175) \"DBKS\": error BLOCK-MISSING a block the record announces is missing "
         "or out of order\n"},
        {"a block sent but not announced", [](auto& l) { l[2][176] = 'N'; },
         "record 3 DSME DBKS (pos 177-177) \"DBKS\": error BLOCK-UNANNOUNCED a block or text the record does not "
         "announce\n"},
        {"the last block cut short", [](auto& l) { l[2].resize(l[2].size() - 10); },
         "record 3 DSME (character 1082) \"DBKS: 210 instead of 220\": error RECORD-LENGTH the record's length is "
         "wrong\n"},
        {"an unknown record", [](auto& l) { l[3].replace(0, 4, "DSXX"); },
         "record 4 DSXX \"DSXX\": error RECORD-ID unknown record identifier\n"},
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
