// The DSER record's fields of its own form, read back.
#include "readback/record_forms.h"
#include "reports/clsGenErst/DSER_layout.h"
#include "reports/clsGenErst/Erst.h"

namespace tamrel::readback {

using namespace layouts::erst;

namespace {

// The value a one-character code stands for (0 for any other).
struct Code {
    std::string_view code;
    std::int32_t value;
};
std::int32_t decoded(std::string_view v, std::initializer_list<Code> codes) {
    for (const Code& c : codes)
        if (v == c.code) return c.value;
    return 0;
}

}  // namespace

template <>
void read_own_forms<Erst>(Erst& e, std::span<const ReadField> left, std::span<const checks::Part> parts,
                          RecordFrame& frame) {
    read_converted_bnrst(left, frame);
    bool dbaa = false;
    for (const checks::Part& p : parts) dbaa |= p.layout == &kDBAA;
    e.DBAAEntfaellt = !dbaa;
    const ReadField* entgelt = find(left, DBAU::FirstOfEntgelt14.name);
    const ReadField* wert = find(left, DBAU::FirstOfWert13.name);
    for (const ReadField& r : left) {
        const std::string_view v = r.value;
        const std::string_view name = r.field->name;
        if (name == DBAU::WhichEntgelt.name && entgelt) {
            // The first amount given, and which of the four it was.
            std::string* amounts[] = {&e.Entgelt1, &e.Entgelt2, &e.Entgelt3, &e.Entgelt4};
            if (const std::int32_t k = decoded(v, {{"1", 1}, {"2", 2}, {"3", 3}, {"4", 4}}))
                *amounts[k - 1] = entgelt->value;
        } else if (name == DBAU::WhichWert.name && wert) {
            std::string* values[] = {&e.Wert1, &e.Wert2, &e.Wert3};
            if (const std::int32_t k = decoded(v, {{"1", 1}, {"2", 2}, {"3", 3}})) *values[k - 1] = wert->value;
        } else if (name == DBAU::AngabeJN1.name) {
            e.AngabeJN1 = jn_value(v);
        } else if (name == DBAU::AngabeJN2.name) {
            e.AngabeJN2 = jn_value(v);
        } else if (name == DBAU::MerkmalAOrMerkmalB.name) {
            e.MerkmalA = v == "2";
            e.MerkmalB = v == "1";
        } else if (name == DBAU::Satz3.name) {
            e.Satz3 = v.empty() ? std::string() : field_value(v, DBAU::Satz3Betrag);
        } else if (name == DBBT::BTKennzeichen.name) {
            e.BTKennzeichen = decoded(v, {{"1", 2}, {"2", 3}, {"3", 4}});
        } else if (name == DBBV::Bankkennzeichen.name) {
            e.Bankkennzeichen = decoded(v, {{"2", 1}, {"1", 2}});
        } else if (name == DBAU::Head.Ausgleichsart2.name) {
            e.Ausgleichsart = v == "1" ? 2 : 0;
        } else if (r.field->name == DSER::ReasonCode.name) {
            // "01" a refund for sickness (reason 11), "02" and "03" by kind of benefit.
            if (v == "01") e.Erstattungsgrund = 11;
            if (v == "02") e.Leistungsart = 2;
            if (v == "03") e.Leistungsart = 1;
        } else if (r.field->name == DSER::Abrechnungskennzeichen.name) {
            // "0" to "3" stand for the values 1 to 4; zeros (read empty) for none.
            e.Abrechnungskennzeichen = from_zero_code(v, '3');
        } else if (r.field->name == DSER::RecordReference.name) {
            // The version and the refund's number.
            e.ErstattungsId = read_version_number(v, frame);
        }
    }
}

}  // namespace tamrel::readback
