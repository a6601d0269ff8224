#include "readback/error_fields.h"

#include <cctype>
#include <vector>

namespace tamrel::readback {
namespace {

// Short names and the position they stand at; "*" for every record with
// the common head (positions 1-63). DSME: the DEUEV data-record
// description's field names; DSBD: the names the published error lines use
// ("NAMEBB2", "STRBB", "TELEFON-ANSPRECH PARTNER AP"); docs/read.md names
// the sources.
struct ShortName {
    std::string_view record, name;
    std::uint16_t pos;
};
constexpr ShortName kShortNames[] = {
    {"*", "KE", 1},           {"*", "VF", 5},           {"*", "ABSN", 10},        {"*", "BBNRAB", 10},
    {"*", "EPNR", 25},        {"*", "BBNREP", 25},      {"*", "VERNR", 40},       {"*", "ED", 42},
    {"*", "FEKZ", 62},        {"*", "FEAN", 63},        {"DSME", "VSNR", 64},     {"DSME", "VSTR", 76},
    {"DSME", "BBNRVU", 78},   {"DSME", "AZVU", 93},     {"DSME", "BBNRKK", 113},  {"DSME", "AZKK", 128},
    {"DSME", "BBNRAS", 148},  {"DSME", "PERSGR", 163},  {"DSME", "GD", 166},      {"DSME", "SASC", 168},
    {"DSME", "MMME", 171},    {"DSME", "MMNA", 172},    {"DSME", "MMGB", 173},    {"DSME", "MMAN", 174},
    {"DSME", "MMEU", 175},    {"DSME", "MMUV", 176},    {"DSME", "MMKS", 177},    {"DSME", "MMSO", 184},
    {"DSME", "MMKV", 189},    {"DSME", "PRODID", 213},  {"DSME", "MODID", 220},   {"DSME", "DSID", 228},
    {"DSVV", "BBNRVU", 78},   {"DSVV", "AZVU", 93},     {"DSER", "VSNR", 64},     {"DSBD", "BBNRVU", 64},
    {"DSBD", "NAMEBB1", 112}, {"DSBD", "NAMEBB2", 142}, {"DSBD", "NAMEBB3", 172}, {"DSBD", "STRBB", 246},
    {"DSBD", "TELEFON", 355},
};

bool has_common_head(const RecordLayout& record) {
    for (const FieldLayout& f : record.fields)
        if (f.name == "number of errors") return f.pos == 63;
    return false;
}

const FieldLayout* field_at(const RecordLayout& record, std::uint16_t pos) {
    for (const FieldLayout& f : record.fields)
        if (pos >= f.pos && pos < f.pos + f.len) return &f;
    return nullptr;
}

bool applies(const ShortName& s, const RecordLayout& record) {
    return s.record == record.id || (s.record == "*" && has_common_head(record));
}

}  // namespace

const FieldLayout* named_field(const RecordLayout& record, const checks::ReturnedError& error) {
    // The words of the text: a word joined by hyphens as one ("BBNR-VU" is
    // BBNRVU), then each of its pieces ("DSBD520-TELEFON-ANSPRECH").
    auto named = [&](std::string_view word) -> const FieldLayout* {
        for (const ShortName& s : kShortNames)
            if (s.name == word && applies(s, record)) return field_at(record, s.pos);
        return nullptr;
    };
    const std::string& t = error.text;
    auto word_char = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; };
    for (std::size_t i = 0; i < t.size();) {
        while (i < t.size() && !word_char(t[i])) ++i;
        std::string joined;
        std::vector<std::string> pieces(1);
        for (; i < t.size() && (word_char(t[i]) || t[i] == '-'); ++i) {
            if (t[i] == '-') {
                pieces.emplace_back();
                continue;
            }
            joined += t[i];
            pieces.back() += t[i];
        }
        if (const FieldLayout* f = named(joined)) return f;
        for (const std::string& piece : pieces)
            if (const FieldLayout* f = named(piece)) return f;
    }
    return nullptr;
}

std::string_view abbreviation(const RecordLayout& record, const FieldLayout& f) {
    for (const ShortName& s : kShortNames)
        if (applies(s, record) && s.pos == f.pos) return s.name;
    return {};
}

nlohmann::ordered_json report_keys(const std::string& report_json) {
    const nlohmann::json r = nlohmann::json::parse(report_json);
    nlohmann::ordered_json keys = nlohmann::ordered_json::object();
    auto take = [&](const nlohmann::json& from, const char* name, const std::string& as) {
        if (from.is_object() && from.contains(name)) keys[as] = from[name];
    };
    const nlohmann::json& v = r.contains("Vorgang") ? r["Vorgang"] : nlohmann::json();
    take(v, "Versicherungsnummer", "Vorgang.Versicherungsnummer");
    take(v, "Aktenzeichen", "Vorgang.Aktenzeichen");
    for (const char* k : {"Versicherungsnummer", "Aktenzeichen", "Laufnummer", "DatensatzNr", "ZahlId", "ErstattungsId",
                          "Bezugsnummer"})
        take(r, k, k);
    return keys;
}

}  // namespace tamrel::readback
