// tamrel read: a file read back into its job, and the job generated again,
// gives the file byte for byte (frame records included), for every example
// and for many random variants of their reports; a returned file's error
// blocks are read with the report and the property they concern, and
// tamrel check takes the returned file as it is.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <random>
#include <sstream>

#include <nlohmann/json.hpp>

#include "json/json_escape.h"
#include "readback/json_text.h"
#include "readback/report_reading.h"
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

// A line's fields are sliced from its UTF-8 text by character: lines of
// ASCII only, and lines with characters of two and three bytes before,
// inside, at the edges of and after the slices, at a step's border too;
// one slicer takes the slices in every order.
TEST(ReadBack, LineTextSlicesFieldsByCharacter) {
    const std::u32string lines[] = {
        U"DSME ABC 123",
        U"\u00c4rger \u00fcber M\u00fcller \u20ac 5",
        std::u32string(15, U'x') + U"\u00df" + std::u32string(20, U'y') + U"\u20ac",
        U"\u00e4\u00f6\u00fc\u00c4\u00d6\u00dc\u00df\u20ac",
    };
    for (const std::u32string& line : lines) {
        const tamrel::readback::LineText& text = tamrel::readback::line_text(line);
        tamrel::readback::LineText::Slicer slicer(text);
        for (std::size_t at = 0; at <= line.size() + 1; ++at)
            for (std::size_t len = 0; len <= line.size() + 1; ++len) {
                const std::u32string part = line.substr(std::min(at, line.size()), len);
                EXPECT_EQ(slicer.slice(at, len), tamrel::checks::to_utf8(part)) << "at " << at << ", " << len;
            }
    }
}

// A line of ISO-8859-1 or -15 is taken from its bytes as it is from its
// characters: the same UTF-8, the same wide characters, for a whole line
// and for a record that is only its first part (a returned one), with
// high bytes anywhere, around the sixteen-byte steps.
TEST(ReadBack, LineTextFromLatinBytesIsLineTextFromCharacters) {
    using tamrel::checks::FileEncoding;
    std::mt19937 rng(33);
    for (const FileEncoding encoding : {FileEncoding::Latin1, FileEncoding::Latin9}) {
        for (std::size_t length = 0; length <= 70; ++length) {
            for (int variant = 0; variant < 20; ++variant) {
                std::string bytes;
                for (std::size_t i = 0; i < length; ++i) {
                    const unsigned r = rng() % 8;
                    bytes += static_cast<char>(r == 0   ? 0x80 + rng() % 0x80
                                               : r == 1 ? 0xA4 + rng() % 0x1B
                                                        : 'A' + rng() % 26);
                }
                std::u32string chars;
                tamrel::checks::decode(bytes, encoding, chars);
                const std::u32string record = chars.substr(0, variant % 2 ? chars.size() : rng() % (chars.size() + 1));
                const tamrel::readback::LineText want = tamrel::readback::line_text(record);
                const tamrel::readback::LineText& got = tamrel::readback::line_text(record, bytes, encoding);
                EXPECT_EQ(got.utf8, want.utf8);
                EXPECT_EQ(got.chars, want.chars);
                ASSERT_EQ(got.wide.size(), want.wide.size());
                for (std::size_t i = 0; i < want.wide.size(); ++i) {
                    EXPECT_EQ(got.wide[i].at, want.wide[i].at);
                    EXPECT_EQ(got.wide[i].extra, want.wide[i].extra);
                }
            }
        }
    }
}

// The report's JSON writer stores plain texts itself and hands the rest to
// the general escaper: every text comes out as that escaper writes it (a
// text of invalid UTF-8 as far as it writes it), across the lengths where
// the writer changes its way of copying and scanning.
TEST(ReadBack, JsonTextWritesTextsAsTheGeneralEscaper) {
    const std::string pieces[] = {"a",
                                  "Z",
                                  " ",
                                  "0",
                                  "\"",
                                  "\\",
                                  "/",
                                  "\n",
                                  "\t",
                                  std::string(1, '\0'),
                                  "\x1f",
                                  "\x7f",
                                  "\xc3\xa4",
                                  "\xe2\x82\xac",
                                  "\xf0\x9d\x84\x9e",
                                  "\xff",
                                  "\x80",
                                  "\xc3"};
    std::mt19937 random(7);
    std::vector<std::string> texts = {"", "Muster", "M\xc3\xbcller", std::string(64, 'x'), std::string(65, 'x')};
    for (int n = 0; n < 4000; ++n) {
        std::string t;
        const std::size_t length = random() % 80;
        // Mostly plain letters, as values are; now and then any piece.
        while (t.size() < length)
            t += random() % 4 ? std::string(1, static_cast<char>('a' + random() % 26))
                              : pieces[random() % std::size(pieces)];
        texts.push_back(t);
    }
    for (const std::string& t : texts) {
        std::string want = "[", got = "[";
        tamrel::append_json_string(want, t);
        {
            tamrel::readback::JsonText text(got);
            text.put_string(t);
        }
        ASSERT_EQ(got, want) << testing::PrintToString(t);
    }
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

// The examples' files returned (error texts as receiving offices publish
// them, in ASCII here as the files are ISO-8859-1): the first data record (line 3) with its
// error flag and count set and its error blocks, and once the whole file
// rejected after its VOSZ. check takes each as it is; read maps each error
// to its report, the field its text names and the property behind it; the
// job read is the job sent.
TEST(ReadBack, ReturnedErrorsNameTheirReportAndProperty) {
    struct Error {
        std::string number, text;
        std::string field, property;  // what the text names; empty: nothing
        int pos;
    };
    struct Case {
        std::string example;
        std::vector<Error> errors;
        bool rejected;  // the file's VOSZ carries an error too
    };
    const Case cases[] = {
        {"deuev-registration.json",
         {{"DSME060", "VSNR ungueltig", "VSNR", "Vorgang.Versicherungsnummer", 64},
          {"DSME107", "BBNR-VU nicht vorhanden", "BBNRVU", "Vorgang.Arbeitgeber.Betriebsnummer", 78}},
         true},
        {"betrieb-master-data.json",
         {{"DSBD520", "DSBD520-TELEFON-ANSPRECH PARTNER AP gleich Grundstellung", "TELEFON", "AnsprechpartnerTelefon",
           355},
          {"DSBD358", "STRBB Grundstellung (Leerzeichen) unzulaessig", "STRBB", "Arbeitgeber.Strasse", 246},
          {"DSBD262", "NAMEBB2 enthaelt Leerzeichen an erster Stelle", "NAMEBB2", "Arbeitgeber.Name2", 142}},
         false},
        {"abfrvers-query.json",
         {{"DSVV040", "BBNR-VU nicht vorhanden", "BBNRVU", "Vorgang.Arbeitgeber.Betriebsnummer", 78},
          {"DSVV900", "Anfrage nicht zulaessig", "", "", 0}},
         false},
        {"erst-reason-01-sickness.json",
         {{"DSER060", "VSNR ungueltig", "VSNR", "Vorgang.Versicherungsnummer", 64}},
         true},
    };
    const auto examples = example_jobs();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.example);
        const auto e = std::find_if(examples.begin(), examples.end(),
                                    [&](const ExampleJob& x) { return x.path.filename() == c.example; });
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
        if (c.rejected) lines[0] += dbfe("VOSZa52", "Datei abgewiesen");
        lines[2].replace(61, 2, "1" + std::to_string(c.errors.size()));
        for (const Error& x : c.errors) lines[2] += dbfe(x.number, x.text);
        std::string returned;
        for (const auto& l : lines) returned += l + "\n";

        std::istringstream check_in(returned);
        const auto findings = tamrel::checks::check_transfer_file(check_in).findings;
        EXPECT_TRUE(findings.empty()) << findings.front().rule->english;

        const Read r = read(returned);
        EXPECT_EQ(skipped(r), "");
        json want = json::array(), got = json::array();
        if (c.rejected) want.push_back({{"record", 1}, {"report", 0}, {"number", "VOSZa52"}});
        for (const Error& x : c.errors) {
            json j{{"record", 3}, {"report", 1}, {"number", x.number}};
            if (!x.field.empty()) j.update({{"field", x.field}, {"pos", x.pos}, {"property", x.property}});
            want.push_back(j);
        }
        for (const auto& x : r.result.errors) {
            json j = json::parse(tamrel::readback::to_json(x).dump());
            for (const char* k : {"id", "keys", "text", "len"}) j.erase(k);
            got.push_back(j);
        }
        EXPECT_EQ(got, want);
        EXPECT_TRUE(generate(r.job) == sent);
    }
}

// Files another program wrote as the published descriptions allow, where
// tamrel itself writes otherwise: check finds nothing, read takes every
// report. A reserve that holds neither blanks nor zeros is still found.
TEST(ReadBack, FilesOfOtherProgramsThatTheDescriptionsAllow) {
    struct Case {
        std::string example, what;
        std::function<void(std::vector<std::string>&)> change;
        std::string findings, skipped;  // of check, of read
    };
    const Case cases[] = {
        {"deuev-registration.json", "DSME 181-183 (internal) blank and \" 1 \", 191-210 (internal) blank",
         [](auto& l) {
             l[2].replace(180, 3, "   ");
             l[3].replace(180, 3, " 1 ");
             l[2].replace(190, 20, std::string(20, ' '));
         },
         "", ""},
        {"bea-dsab.json", "no DSKO, DSID without a number, the reserve 165-166 blank",
         [](auto& l) {
             l.erase(l.begin() + 1);
             l[1].replace(120, 10, std::string(10, ' '));
             l[1].replace(164, 2, "  ");
             l[2].replace(53, 8, "00000001");  // the NCSZ count without the DSKO
         },
         "", ""},
        {"bea-dsne.json", "a reserve of text in a numeric reserve", [](auto& l) { l[2].replace(163, 2, "AB"); },
         "record 3 DSNE reserve (pos 164-165) \"AB\": error DIGITS expected digits of the field's length\n",
         "record 3 DSNE: read back, it builds differently from character 164 (reserve)\n"},
    };
    const auto examples = example_jobs();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.example + ": " + c.what);
        const auto e = std::find_if(examples.begin(), examples.end(),
                                    [&](const ExampleJob& x) { return x.path.filename() == c.example; });
        ASSERT_NE(e, examples.end());
        std::vector<std::string> lines;
        std::istringstream in(generate(e->job));
        for (std::string l; std::getline(in, l);) lines.push_back(l);
        c.change(lines);
        std::string file;
        for (const auto& l : lines) file += l + "\n";
        std::istringstream check_in(file);
        std::string found;
        for (const auto& f : tamrel::checks::check_transfer_file(check_in).findings)
            found += tamrel::checks::describe(f) + "\n";
        EXPECT_EQ(found, c.findings);
        const Read r = read(file);
        EXPECT_EQ(skipped(r), c.skipped);
        EXPECT_EQ(r.result.reports + r.result.skipped.size(), e->job["reports"].size());
    }
}

// The XML report as other writers may lay it out: indented, in UTF-8, with
// an element tamrel does not write (told and skipped, the rest read).
TEST(ReadBack, XmlReportsInOtherLayouts) {
    const auto examples = example_jobs();
    const auto e = std::find_if(examples.begin(), examples.end(),
                                [](const ExampleJob& x) { return x.path.filename() == "xml-asyl-report.json"; });
    ASSERT_NE(e, examples.end());
    const std::string sent = generate(e->job);
    auto replaced = [](std::string s, std::string_view from, std::string_view to) {
        for (std::size_t at = 0; (at = s.find(from, at)) != std::string::npos; at += to.size())
            s.replace(at, from.size(), to);
        return s;
    };
    std::string utf8;
    for (unsigned char c : sent) {
        if (c < 0x80) {
            utf8 += static_cast<char>(c);
        } else {
            utf8 += static_cast<char>(0xC0 | (c >> 6));
            utf8 += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    const struct {
        std::string what, file, skipped;
        std::size_t reports;
    } cases[] = {
        {"as written", sent, "", 2},
        {"indented", replaced(sent, "><", ">\n    <"), "", 2},
        {"in UTF-8", replaced(utf8, "ISO-8859-1", "UTF-8"), "", 2},
        {"an element tamrel does not write", replaced(sent, "<ncsz>", "<extra>1</extra>\n<ncsz>"),
         "record 4 extra: no element of the XML report tamrel writes\n", 2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const Read r = read(c.file);
        EXPECT_EQ(skipped(r), c.skipped);
        EXPECT_EQ(r.result.reports, c.reports);
        EXPECT_TRUE(generate(r.job) == sent);
    }
}

// What tamrel does not write is told with its record and skipped, never
// guessed at; the rest of the file is read.
TEST(ReadBack, WhatIsNotReadBackIsTold) {
    const auto examples = example_jobs();
    auto file_of = [&](const char* name) {
        const auto e = std::find_if(examples.begin(), examples.end(),
                                    [&](const ExampleJob& x) { return x.path.filename() == name; });
        std::vector<std::string> lines;
        std::istringstream in(generate(e->job));
        for (std::string l; std::getline(in, l);) lines.push_back(l);
        return lines;
    };
    const std::vector<std::string> deuev = file_of("deuev-registration.json"),
                                   dsbd = file_of("betrieb-master-data.json");
    const struct {
        std::string what;
        std::function<void(std::vector<std::string>&)> change;
        std::string skipped;
        std::size_t reports;
    } cases[] = {
        {"a header of a procedure tamrel does not write", [](auto& l) { l[0].replace(4, 5, "XXXXX"); },
         "record 1 VOSZ: read back, the header builds differently\n", 2},
        {"an unknown record", [](auto& l) { l[3].replace(0, 4, "DSXX"); },
         "record 4 DSXX: no procedure tamrel writes has this record\n", 1},
        {"a record of another procedure", [&](auto& l) { l[3] = dsbd[2]; },
         "record 4 DSBD: a record of another procedure than the file's first (clsGenMeldung)\n", 1},
        {"a record cut short", [](auto& l) { l[2].resize(300); },
         "record 3 DSME: does not fit its layout: the record's length is wrong (300 instead of 559)\n", 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        std::vector<std::string> lines = deuev;
        c.change(lines);
        std::string file;
        for (const auto& l : lines) file += l + "\n";
        const Read r = read(file);
        EXPECT_EQ(skipped(r), c.skipped);
        EXPECT_EQ(r.result.reports, c.reports);
    }
}

}  // namespace
