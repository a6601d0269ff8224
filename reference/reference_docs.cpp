#include "reference/reference_docs.h"

#include <regex>
#include <set>
#include <sstream>

#include "call/call_protocol.h"
#include "call/call_registry.h"
#include "call/procedure.h"
#include "json/property_list.h"

namespace tamrel {
namespace {

using nlohmann::json;

// Where a property is written: a field of a record, block or entry, whole
// or in part (made of it and other values).
struct Place {
    std::string_view id;
    std::uint16_t pos, len;
    bool part;
    auto operator<=>(const Place&) const = default;
};
using Places = std::map<std::string, std::set<Place>>;

// The property paths a field's name gives: the name itself where it is a
// path, "KsZeileA" of "KsZeileA(3)", and every path a description mentions
// ("Beitragsgruppe1-4" mentions Beitragsgruppe1 to Beitragsgruppe4).
std::vector<std::pair<std::string, bool>> named(const std::string& name) {
    static const std::regex path(R"([A-Za-z][A-Za-z0-9]*(\.[A-Za-z][A-Za-z0-9]*)*)");
    static const std::regex item(R"(([A-Za-z][A-Za-z0-9.]*)\((\d+|i)\))");
    static const std::regex capital("[A-Z]");
    static const std::regex range(R"(([A-Za-z.]*[A-Za-z])(\d)-(\d))");
    std::smatch m;
    if (std::regex_match(name, path)) return {{name, false}};
    if (std::regex_match(name, m, item)) return {{m[1].str(), false}};
    std::vector<std::pair<std::string, bool>> out;
    for (std::sregex_iterator r(name.begin(), name.end(), range), end; r != end; ++r)
        for (char d = (*r)[2].str()[0]; d <= (*r)[3].str()[0]; ++d) out.emplace_back((*r)[1].str() + d, true);
    for (std::sregex_iterator t(name.begin(), name.end(), path), end; t != end; ++t)
        if (std::regex_search(t->str(), capital)) out.emplace_back(t->str(), true);
    return out;
}

// Every field of the record and of its blocks, entries and forms, under the
// properties its name gives.
void places_of(const RecordLayout& l, Places& out, std::set<const RecordLayout*>& seen) {
    if (!seen.insert(&l).second) return;
    for (const FieldLayout& f : l.fields) {
        if (f.block) places_of(*f.block, out, seen);
        if (f.kind == FieldKind::Literal || f.announce != Announce::None) continue;
        for (const auto& [property, part] : named(std::string(f.name)))
            out[property].insert({l.id, f.pos, f.len, part});
    }
    for (const RecordLayout* f : l.forms) places_of(*f, out, seen);
    if (l.entry) places_of(*l.entry, out, seen);
}

// "DBKV 10-17; DBME 7-14; DBKS 7-8, 19-20 (in part)".
std::string places_text(const std::set<Place>& places) {
    std::string s;
    std::string_view id;
    for (const Place& p : places) {
        s += p.id != id ? std::string(s.empty() ? "" : "; ") + std::string(p.id) + " " : std::string(", ");
        id = p.id;
        s += std::to_string(p.pos) + (p.len > 1 ? "-" + std::to_string(p.pos + p.len - 1) : std::string()) +
             (p.part ? " (in part)" : "");
    }
    return s;
}

std::string joined(const std::set<std::string>& parts, std::string_view sep) {
    std::string s;
    for (const auto& p : parts) s += (s.empty() ? "" : std::string(sep)) + p;
    return s;
}

// The properties the checks find missing in an object of only `given`.
std::set<std::string> missing(const ProcedureDescriptor& p, const json& given) {
    const json r = json::parse(
        call({{"class", std::string(p.cls)}, {"method", "Check"}, {"args", {{std::string(p.objParam), given}}}})
            .dump());
    std::set<std::string> out;
    for (const json& f : r["out"]["findings"])
        if (f["rule"] == "MISSING") out.insert(f["field"].get<std::string>());
    return out;
}

// When each property is required: "always", or by report reason.
std::map<std::string, std::string> requirements(const ProcedureDescriptor& p) {
    std::map<std::string, std::string> when;
    const std::set<std::string> always = missing(p, json::object());
    std::map<std::string, std::set<std::string>> reasons;
    if (p.reasons)
        for (const std::string& reason : p.reasons())
            for (const std::string& f : missing(p, {{std::string(p.reasonProperty), reason}}))
                reasons[f].insert(reason);
    for (const auto& [f, rs] : reasons) when[f] = "reasons " + joined(rs, ", ");
    for (const std::string& f : always) when[f] = "yes";
    return when;
}

std::string object_name(const ProcedureDescriptor& p) { return std::string(p.objParam.substr(3)); }

std::string property_page(const ProcedureDescriptor& p) {
    Places fields;
    std::set<const RecordLayout*> seen;
    for (const RecordLayout* l : p.records) places_of(*l, fields, seen);
    const auto required = requirements(p);
    std::ostringstream s;
    s << "# `" << object_name(p) << "`\n\n"
      << "The data object of `" << p.cls << "`: the argument `" << p.objParam << "` of `GenData` and `Check`";
    if (!p.protoMethod.empty()) s << " and of `clsProtoEntry." << p.protoMethod << "`";
    s << ". Generated from the binding table, the record layouts and the checks (`tamrel docs`).\n\n"
      << "Every property may be left out; it then has its type's empty value (`\"\"`, `0`, `false`, an empty "
         "list or object). An unknown property is a request error. *Record fields* are the fields the property "
         "is written to (record or block, positions); *(in part)* marks a field made of it and other values. "
         "*Required* is when the checks report it missing ([checks](../checks.md)).\n\n"
      << "| property | type | record fields | required |\n| --- | --- | --- | --- |\n";
    for (const PropertyRow& r : p.Properties()) {
        std::string key = r.path;
        for (std::size_t at; (at = key.find("[]")) != std::string::npos;) key.erase(at, 2);
        const auto f = fields.find(key);
        const auto req = required.find(key);
        s << "| `" << r.path << "` | " << r.type << " | " << (f == fields.end() ? "" : places_text(f->second)) << " | "
          << (req == required.end() ? "" : req->second) << " |\n";
    }
    return s.str();
}

// A parameter's type, from its name (and the class, for enmVerfahren).
std::string parameter_type(std::string_view cls, std::string_view name) {
    if (name.starts_with("obj"))
        return "data object [`" + std::string(name.substr(3)) + "`](properties/" + std::string(name.substr(3)) + ".md)";
    if (name == "udtDSKOData") return "structure `DSKOData`";
    if (name == "udtDatensatzData") return "structure `DatensatzData`";
    if (name.starts_with("dat")) return "date";
    if (name == "enmVerfahren") {
        const ProcedureDescriptor* p = find_procedure(cls);
        return p && p->integer_verfahren() ? "32-bit integer" : "`VerfMerkmal` (integer or name)";
    }
    if (name.starts_with("bln")) return "Boolean";
    return "String";
}

// A request run to show its response.
std::string example(const nlohmann::ordered_json& request) {
    return "```json\n" + request.dump() + "\n" + call(json::parse(request.dump())).dump() + "\n```\n";
}

std::string call_protocol_page() {
    std::ostringstream s;
    s << R"(# The call protocol

Every public method of every creatable class, driven by JSON: one request
in, one response out. `tamrel call [FILE]` reads one request a line (NDJSON)
and writes one response a line, in order; `tamrel_call()` (C),
`tamrel::call()` (C++) and `tamrel.call()` (Python) take one. This page is
generated from the call table (`tamrel docs`), and its examples are run to
write their responses.

## Request

- `class`, `method`: a class and one of its methods (below).
- `args`: the parameters by name. Optional parameters may be left out; an
  unknown one is a request error.
- `id` (optional, any JSON value): echoed in the response.
- `now` (optional, `"YYYY-MM-DDTHH:MM:SS"`): the computer's date and time for
  this call (what an empty date becomes).
- `tests` (optional): the answers of the data-object tests, as lists of the
  texts for which each answers true: `NameTest`, `EmpfBknTest1`,
  `EmpfBknTest2`.

Value types: String is a JSON string; integers are JSON integers within
their type's range; Boolean is `true`/`false`; a date is `"YYYY-MM-DD"` or
`"YYYY-MM-DDTHH:MM:SS"` (absent, `null` or `""`: the empty date);
`VerfMerkmal` is an integer or `"vmNormal"`, `"vmSofort"`, `"vmBV"`;
`DSKOData` and `DatensatzData` are objects of their members (all Strings);
a data object is an object of its properties ([properties/](properties/)).

Any JSON request is answered the same. The fastest to read is a request
written in UTF-8 without escapes, its keys in the order above with `args`
last and the parameters in the order of the method's list: it is read in
one pass, straight into the data objects ([performance.md](performance.md)).

## Response

- success: `{"result": "…", "out": {…}, "log": []}`; `out` holds the in/out
  parameters (`strDatum` of `GenVOSZ`) and the findings of `Check`;
- the method failed as the component would: `{"error": {"number": …,
  "source": "…", "description": "…"}, "log": ["Fehler …", …]}`, every log
  line innermost first;
- the request is not valid: `{"request_error": "…"}`, naming what is wrong
  and where (`args.objMeldung.Laufnummer: expected an integer`).

## Classes and methods

)";
    for (const auto& [cls, methods] : registry()) {
        s << "### `" << cls << "`\n\n| method | parameters |\n| --- | --- |\n";
        for (const auto& [name, m] : methods) {
            std::string params;
            for (const auto& r : m.required)
                params += (params.empty() ? "" : "; ") + ("`" + r + "` " + parameter_type(cls, r));
            for (const auto& o : m.optional)
                params += (params.empty() ? "" : "; ") + ("`" + o + "` " + parameter_type(cls, o) + ", optional");
            s << "| `" << name << "` | " << params << " |\n";
        }
        s << "\n";
    }
    const nlohmann::ordered_json dsko = {{"strBNRAb", "98765432"},  {"strBNREm", "12345671"},
                                         {"strMicroSec", "000001"}, {"strProdID", "TAMREL1"},
                                         {"strModID", "DEUEV01"},   {"strName1", "Muster GmbH"}};
    s << "## Examples\n\nA frame record:\n\n"
      << example({{"class", "clsGenMeldung"},
                  {"method", "GenNCSZ"},
                  {"now", "2024-03-01T10:11:12"},
                  {"args",
                   {{"strBNRAb", "98765432"},
                    {"strBNREm", "12345671"},
                    {"strFileNr", "1"},
                    {"strCount", "3"},
                    {"enmVerfahren", "vmNormal"}}}})
      << "\nThe communication record, with its structure:\n\n"
      << example({{"class", "clsGenErst"},
                  {"method", "GenDSKO"},
                  {"now", "2024-03-01T10:11:12"},
                  {"args", {{"udtDSKOData", dsko}}}})
      << "\nThe checks of a report, before `GenData`:\n\n"
      << example({{"class", "clsGenMeldung"},
                  {"method", "Check"},
                  {"args",
                   {{"objMeldung",
                     {{"Meldegrund", "30"},
                      {"Personengruppe", "101"},
                      {"Beginn", "20240101"},
                      {"Ende", "20240229"},
                      {"Entgelt", "-5400"},
                      {"Beitragsgruppe1", "1"},
                      {"Beitragsgruppe2", "1"},
                      {"Beitragsgruppe3", "1"},
                      {"Beitragsgruppe4", "1"},
                      {"Vorgang",
                       {{"Versicherungsnummer", "65170839J003"}, {"Arbeitgeber", {{"Betriebsnummer", "98765432"}}}}},
                      {"Empfaenger", {{"Betriebsnummer", "12345671"}}}}}}}})
      << "\nA method that fails (a negative amount where the record has no sign):\n\n"
      << example({{"class", "clsGenErst"},
                  {"method", "GenData"},
                  {"now", "2024-03-01T10:11:12"},
                  {"args",
                   {{"objErst", {{"Erstattungsgrund", 11}, {"Betrag1", "-5"}}}, {"udtDatensatzData", json::object()}}}})
      << "\nA request that is not valid:\n\n"
      << example(
             {{"id", 7},
              {"class", "clsGenMeldung"},
              {"method", "GenData"},
              {"args",
               {{"objMeldung", {{"Laufnummer", "1"}}}, {"udtDatensatzData", json::object()}, {"enmVerfahren", 0}}}});
    return s.str();
}

}  // namespace

std::map<std::string, std::string> reference_docs() {
    std::map<std::string, std::string> docs;
    docs["call-protocol.md"] = call_protocol_page();
    for (const ProcedureDescriptor& p : procedures()) docs["properties/" + object_name(p) + ".md"] = property_page(p);
    return docs;
}

}  // namespace tamrel
