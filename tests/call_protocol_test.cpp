#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "call/call_protocol.h"
#include "call/call_registry.h"
#include "call/call_response.h"
#include "capi/c_api.h"
#include "tests/example_jobs.h"
#include "tests/mutator.h"

using nlohmann::json;

namespace {

json call(const std::string& text) { return json::parse(tamrel::call(json::parse(text)).dump()); }

TEST(CallProtocol, RequestErrorsNameWhatIsWrong) {
    const std::pair<const char*, const char*> cases[] = {
        {R"({"class":"clsGenX","method":"GenData"})", "class: unknown class clsGenX"},
        {R"({"class":"clsGenDef","method":"GenData"})", "class: clsGenDef cannot be created"},
        {R"({"class":"clsGenAsyl","method":"GenDSKO"})", "method: clsGenAsyl has no method GenDSKO"},
        {R"({"class":"clsGenMeldung","method":"GenDSKO","args":{"udtDSKOData":{},"extra":1}})",
         "args.extra: unknown parameter"},
        {R"({"class":"clsGenMeldung","method":"GenDSKO","args":{}})", "args.udtDSKOData: missing"},
        {R"({"class":"clsGenMeldung","method":"GenDSKO","args":{"udtDSKOData":{"strPLZ":12345}}})",
         "args.udtDSKOData.strPLZ: expected a string"},
        {R"({"class":"clsGenMeldung","method":"GenDSKO","args":{"udtDSKOData":{},"datDate":"2024-02-30"}})",
         "args.datDate: expected \"YYYY-MM-DD\" or \"YYYY-MM-DDTHH:MM:SS\""},
        {R"({"class":"clsGenMeldung","method":"GenData","args":{"objMeldung":{"KsErster":40000},"udtDatensatzData":{},"enmVerfahren":0}})",
         "args.objMeldung.KsErster: integer out of the 16-bit range"},
        {R"({"class":"clsGenMeldung","method":"GenData","args":{"objMeldung":{"Vorgang":{"Arbeitgeber":{"Nmae1":""}}},"udtDatensatzData":{},"enmVerfahren":0}})",
         "args.objMeldung.Vorgang.Arbeitgeber.Nmae1: unknown property"},
        {R"({"class":"clsGenMeldung","method":"GenData","args":{"objMeldung":{},"udtDatensatzData":{},"enmVerfahren":"vmFast"}})",
         "args.enmVerfahren: expected an integer or one of \"vmNormal\", \"vmSofort\", \"vmBV\""},
        {R"({"class":"clsGenMeldung","method":"GenDSKO","args":{"udtDSKOData":{}},"tests":{"Other":[]}})",
         "tests.Other: unknown test"},
        {R"({"class":"clsGenMeldung","method":"GenDSKO","args":{"udtDSKOData":{}},"now":"yesterday"})",
         "now: expected \"YYYY-MM-DDTHH:MM:SS\""},
        {R"({"class":"clsGenMeldung","method":"GenDSKO","args":{"udtDSKOData":{}},"when":1})", "when: unknown key"},
    };
    for (const auto& [request, message] : cases) EXPECT_EQ(call(request)["request_error"], message) << request;
}

// Nothing a request says may be dropped silently: a key given twice, an index
// spelt otherwise than in canonical decimal, null for a String.
TEST(CallProtocol, NoValueIsEverDropped) {
    const std::string meldung =
        R"({"class":"clsGenMeldung","method":"GenData","args":{"udtDatensatzData":{},"enmVerfahren":0,"objMeldung":)";
    const std::pair<std::string, const char*> cases[] = {
        {meldung + R"({"KsZeileA":{"1":"AB","01":"XY"}}}})",
         "args.objMeldung.KsZeileA.01: expected an index from 0 to 32767 in decimal, without sign or leading zeros"},
        {meldung + R"({"KsZeileA":{"1":"AB","1":"XY"}}}})", "args.objMeldung.KsZeileA.1: given twice"},
        {meldung + R"({"Vorgang":{"PLZ":"1","PLZ":"2"}}}})", "args.objMeldung.Vorgang.PLZ: given twice"},
        {R"({"class":"clsGenLohnnachweis","method":"GenData","args":{"udtDatensatzData":{},"objLohnnachweis":{"Position":[{},{"PosFeld1":"A","PosFeld1":"B"}]}}})",
         "args.objLohnnachweis.Position[2].PosFeld1: given twice"},
        {R"({"class":"clsGenZahl","class":"clsGenZahl","method":"GenNCSZ"})", "class: given twice"},
        {R"({"class":"clsProtoEntry","method":"CreateProtoZahl","args":{"objZahl":{},"blnError":false,"strErrText":null}})",
         "args.strErrText: expected a string"},
        {R"({"class":"clsGenZahl","method":"GenVOSZ","args":{"strBNRAb":"1","strBNREm":"2","strFileNr":"1","strFirma":"F","enmVerfahren":0,"strDatum":null}})",
         "args.strDatum: expected a string"},
    };
    for (const auto& [request, message] : cases) {
        bool request_error = false;
        EXPECT_EQ(json::parse(tamrel::call_line(request, request_error))["request_error"], message) << request;
        EXPECT_TRUE(request_error);
    }
    // The empty date may still be written as null.
    bool request_error = false;
    const json r = json::parse(tamrel::call_line(
        R"({"class":"clsGenZahl","method":"GenNCSZ","args":{"strBNRAb":"1","strBNREm":"2","strFileNr":"1","strCount":"3","datDate":null},"now":"2024-03-05T08:00:00"})",
        request_error));
    EXPECT_EQ(r["result"], "NCSZAGDAZ1              2              202403050000010000000301");
}

TEST(CallProtocol, InOutDateIndexedListsAndTests) {
    json r = call(
        R"({"id":"a","class":"clsGenBetrieb","method":"GenVOSZ","args":{"strBNRAb":"1","strBNREm":"2","strFileNr":"1","strFirma":"F","enmVerfahren":0},"now":"2024-03-05T08:00:00"})");
    EXPECT_EQ(r["id"], "a");
    EXPECT_EQ(r["out"]["strDatum"], "20240305");
    EXPECT_EQ(r["result"].get<std::string>().substr(39, 8), "20240305");
    EXPECT_EQ(r["log"], json::array());

    // Indexed lists as object or array; bounds follow the indices given.
    const char* ks_object =
        R"({"1":"AB","2":"CD","3":"","4":"","5":"","6":"","7":"","8":"","9":"","10":"","11":"","12":"EF"})";
    std::string request =
        std::string(
            R"({"class":"clsGenMeldung","method":"GenData","args":{"objMeldung":{"Meldegrund":"30","Meldungsart":1,"KsZeileA":)") +
        ks_object + R"(},"udtDatensatzData":{},"enmVerfahren":0,"datDate":"2024-03-01"}})";
    std::string dbks = call(request)["result"].get<std::string>().substr(559 + 147);
    EXPECT_EQ(dbks.substr(0, 30), "DBKSK AB          CD          ");
    EXPECT_EQ(dbks.size(), 220u);

    json named = call(
        R"({"class":"clsGenMeldung","method":"GenData","args":{"objMeldung":{"Meldegrund":"62","Meldungsart":8,"Vorgang":{"Bezugskennung":"K1"}},"udtDatensatzData":{},"enmVerfahren":0,"datDate":"2024-03-01"},"tests":{"NameTest":["K1"]}})");
    EXPECT_EQ(named["result"].get<std::string>().substr(171, 1), "J");
}

TEST(CallProtocol, CInterfaceRoundTrip) {
    char* response = tamrel_call(
        R"({"class":"clsGenZahl","method":"GenDSKO","args":{"udtDSKOData":{}},"now":"2024-03-05T08:00:00"})");
    ASSERT_NE(response, nullptr);
    json r = json::parse(response);
    tamrel_free(response);
    EXPECT_EQ(r["result"].get<std::string>().substr(0, 9), "DSKOZAHLS");
    char* bad = tamrel_call("{");
    EXPECT_TRUE(json::parse(bad).contains("request_error"));
    tamrel_free(bad);
}

}  // namespace

namespace {

TEST(CallProtocol, FrameCodesOfEveryClass) {
    struct Case {
        const char* cls;
        const char* vosz_args;
        const char* dsko_args;
        const char* vosz;
        const char* dsko;
    };
    const char* common = R"("strBNRAb":"1","strBNREm":"2","strFileNr":"1","strFirma":"F")";
    const Case cases[] = {
        {"clsGenMeldung", R"(,"enmVerfahren":"vmSofort")", "", "AGTRV", "DEUEV"},
        {"clsGenBeitrNachw", R"(,"enmVerfahren":4)", R"(,"enmVerfahren":4)", "BWBNV", "BWBNV"},
        {"clsGenBeitrNachw", R"(,"enmVerfahren":1)", R"(,"enmVerfahren":1)", "BWNAC", "BWNAC"},
        {"clsGenBeitrErh", "", "", "AGBVB", "BVBEI"},
        {"clsGenErst", R"(,"enmVerfahren":0)", "", "AGAAG", "AAGER"},
        {"clsGenZahl", R"(,"enmVerfahren":0)", "", "AGDAZ", "ZAHLS"},
        {"clsGenBetrieb", R"(,"enmVerfahren":0)", "", "AGDEU", "DEUEV"},
        {"clsGenArbeitsBesch", R"(,"enmVerfahren":0)", "", "AGTBA", "ALG  "},
        {"clsGenEntgelt", R"(,"enmVerfahren":0)", "", "AGEEL", "LEIST"},
        {"clsGenAbfrVers", R"(,"enmVerfahren":0)", "", "AGTRV", "DEUEV"},
        {"clsGenAbfrStammdatenUV", R"(,"enmVerfahren":0)", "", "UNUVS", "UVSDD"},
        {"clsGenLohnnachweis", R"(,"enmVerfahren":0)", "", "UNUVL", "UVELN"},
    };
    for (const auto& c : cases) {
        json v = call(std::string(R"({"class":")") + c.cls + R"(","method":"GenVOSZ","args":{)" + common + c.vosz_args +
                      R"(,"datDate":"2024-03-01"}})");
        ASSERT_TRUE(v.contains("result")) << c.cls << v.dump();
        EXPECT_EQ(v["result"].get<std::string>().substr(4, 5), c.vosz) << c.cls;
        EXPECT_EQ(v["result"].get<std::string>().size(), 105u);
        json d = call(std::string(R"({"class":")") + c.cls + R"(","method":"GenDSKO","args":{"udtDSKOData":{})" +
                      c.dsko_args + R"(,"datDate":"2024-03-01"}})");
        EXPECT_EQ(d["result"].get<std::string>().substr(4, 5), c.dsko) << c.cls;
    }
}

}  // namespace

#include <type_traits>

#include "call/clsGenDef.h"

static_assert(!std::is_default_constructible_v<tamrel::clsGenDef>, "clsGenDef cannot be created");

namespace {

// The request as a caller writes it by hand: the request's keys first and
// "args" last, the arguments in the order of the method's parameters
// (`reversed`: the other way round). Each data object keeps its own order.
std::string written_in_order(const json& request, bool reversed) {
    const auto cls = tamrel::registry().find(request.value("class", ""));
    if (!request.contains("args") || cls == tamrel::registry().end() || !cls->second.contains(request["method"]))
        return request.dump();
    const tamrel::Method& method = cls->second.at(request["method"]);
    std::vector<std::string> names(method.required);
    names.insert(names.end(), method.optional.begin(), method.optional.end());
    if (reversed) std::reverse(names.begin(), names.end());
    nlohmann::ordered_json line, args = nlohmann::ordered_json::object();
    for (const char* key : {"class", "method", "now", "id", "tests"})
        if (request.contains(key)) line[key] = request[key];
    for (const std::string& name : names)
        if (request["args"].contains(name)) args[name] = request["args"][name];
    for (const auto& [name, value] : request["args"].items())
        if (!args.contains(name)) args[name] = value;
    line["args"] = args;
    return line.dump();
}

// A request line answered by the fast path and by the general one (the
// whole request parsed as one document) gives the same response, byte for
// byte: for every example's GenData, protocol line and Check, for seeded
// variants of every report (most of them errors or request errors), and
// for lines the fast path must leave to the general one.
TEST(CallProtocol, FastAndGeneralPathsAnswerTheSame) {
    using nlohmann::json;
    auto general = [](const std::string& line) {
        bool request_error = false;
        return tamrel::call_line_general(line, request_error);
    };
    auto fast = [](const std::string& line) {
        bool request_error = false;
        return tamrel::call_line(line, request_error);
    };
    std::vector<std::string> lines;
    for (const auto& e : tamrel::testing::example_jobs()) {
        tamrel::testing::Mutator mutate(11);
        for (const json& report : e.job["reports"]) {
            for (int v = 0; v < 60; ++v) {
                const json variant = v == 0 ? report : mutate.vary(report);
                json request = tamrel::testing::gen_data_request(e, variant);
                if (v % 3 == 1) request["id"] = v;
                if (v % 3 == 2) request["id"] = "r\"" + std::to_string(v);
                std::vector<json> requests{request, json{{"class", e.job["class"]},
                                                         {"method", "Check"},
                                                         {"args", {{std::string(e.info->objParam), variant}}}}};
                if (!e.info->protoMethod.empty())
                    requests.push_back(tamrel::testing::protocol_request(e, variant, v % 2 == 1, "Fehler\n1"));
                // Keys sorted (as a JSON library that sorts them writes them), then in the
                // order of the parameters and the other way round.
                for (const json& r : requests)
                    for (const std::string& line : {r.dump(), written_in_order(r, false), written_in_order(r, true)})
                        lines.push_back(line);
            }
        }
    }
    // The frame request, its clock fixed where the line leaves it free.
    const std::string frame = R"("now":"2024-03-01T00:00:00","class":"clsGenMeldung","method":"GenNCSZ",)"
                              R"("args":{"strBNRAb":"1","strBNREm":"2",)"
                              R"("strFileNr":"3","strCount":"4","enmVerfahren":"vmNormal")";
    for (
        const std::string& odd : std::initializer_list<std::string>{
            "{" + frame + "}}",
            "{" + frame + ",\"strCount\":\"5\"}}",                          // a parameter given twice
            "{" + frame + "},\"class\":\"clsGenMeldung\"}",                 // a request key given twice
            "{" + frame + "},\"now\":\"2024-02-30T00:00:00\"}",             // "now" twice
            "{" + frame + "},\"now\":\"2024-02-03T00:00:00\",\"id\":1.5}",  // "now" twice, an id that is no integer
            "{" + frame + "},\"tests\":{\"NameTest\":[\"A\"]}}",
            "{" + frame + ",\"colour\":1}}",
            "{" + frame + "},\"colour\":1}",
            "{\"class\":\"clsGenDef\",\"method\":\"GenData\",\"args\":{}}",
            "{\"class\":\"clsGenMeldung\",\"method\":\"GenDSKO\",\"args\":{}}",
            "{\"class\":\"clsGenMeldung\",\"method\":\"GenNCSZ\"}",
            "[]",
            "{\"id\":[1,{\"a\":2}]," + frame + "}}",
            "{" + frame + "},\"id\":1}",                         // "args" not last
            "{" + frame + ",}}",                                 // a comma before the end
            "{" + frame + "}",                                   // the request not closed
            "{" + frame + ",\"datDate\":\"2024-03-01\t\"}}",     // a control character in a text
            "{" + frame + ",\"datDate\":\"2024-03-\\u0030\"}}",  // an escape
            "{" + frame + ",\"x\":" + std::string(40, '[') + std::string(40, ']') + "}}",
            "{" + frame + ",\"datDate\":\"2024-03-01\"} }\t",
            "{" + frame + ",\"datDate\":\"2024-03-01\"}} x",
            "{\"id\":12345678901234567890," + frame + "}}",
            "{\"id\":-0," + frame + "}}",
            "{\"id\":\"M\xC3\xBCller\"," + frame + "}}",
            "{\"id\":\"\xC3\"," + frame + "}}",  // not UTF-8
            R"({"class":"clsGenMeldung","method":"GenNCSZ","args":{"strBNRAb":"1","strBNREm":"2","strFileNr":"3","strCount":"4","enmVerfahren":"vmNormal")",
            R"({"class":"clsGenMeldung","method":"GenNCSZ","args":{"datDate":"2024-03-01","strCount":"4","strFileNr":"3","strBNREm":"2","strBNRAb":"1","enmVerfahren":1}})",
            R"({"class":"clsGenMeldung","method":"GenNCSZ","args":{"datDate":null,"strBNRAb":"1","strBNREm":"2","strFileNr":"3","strCount":"4","enmVerfahren":1}})",
            R"({"class":"clsGenMeldung","method":"GenNCSZ","args":{"strBNRAb":"1","strBNREm":"2","strFileNr":"3","strCount":4,"enmVerfahren":1}})",
        })
        lines.push_back(odd);
    for (const std::string& line : lines) EXPECT_EQ(fast(line), general(line)) << line;
}

// The scanning reader takes every example's GenData request as a caller
// writes it by hand (whatever the order of its arguments), and answers as
// the general path does; a request with "args" first it leaves to the next
// reader.
TEST(CallProtocol, TheScannerTakesPlainRequests) {
    std::size_t taken = 0;
    for (const auto& e : tamrel::testing::example_jobs()) {
        if (e.job.contains("tests")) continue;  // test answers are for the general path
        for (const json& report : e.job["reports"]) {
            const json request = tamrel::testing::gen_data_request(e, report);
            for (const bool reversed : {false, true}) {
                const std::string line = written_in_order(request, reversed);
                std::string out;
                bool request_error = false;
                ASSERT_TRUE(tamrel::fast_call::scan_call(line, out)) << line;
                EXPECT_EQ(out, tamrel::call_line_general(line, request_error)) << line;
                ++taken;
            }
            std::string out;
            EXPECT_FALSE(tamrel::fast_call::scan_call(request.dump(), out));
        }
    }
    EXPECT_GT(taken, 20u);
}

}  // namespace
