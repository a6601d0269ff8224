// Fields that several records and blocks share, declared once: the first
// 63 positions of most data records, and the contact-person block that
// core/contact_block.cpp builds (DBAP, DBAA).
#pragma once
#include "core/layout.h"

namespace tamrel::layouts {

// The first 63 positions of most data records: identifier, procedure,
// sender, receiver, version, creation time (named after the property it
// comes from), microseconds, error marker and count.
struct RecordHead {
    std::string_view id, procedure, version, created;
    FieldLayout Kennung = layout::lit("identifier", 1, id);
    FieldLayout Verfahren = layout::lit("procedure", 5, procedure);
    FieldLayout strBNRAb{"DatensatzData.strBNRAb", 10, 15, FieldKind::Bnr};
    FieldLayout EmpfaengerBetriebsnummer{"Empfaenger.Betriebsnummer", 25, 15, FieldKind::Bnr};
    FieldLayout Version = layout::lit("version", 40, version);
    FieldLayout Erstellt{created, 42, 14, FieldKind::DateTime};
    FieldLayout strMicroseconds{"DatensatzData.strMicroseconds", 56, 6, FieldKind::N};
    FieldLayout Fehlerkennzeichen = layout::lit("error marker", 62, "0");
    FieldLayout Fehleranzahl = layout::lit("number of errors", 63, "0");
    constexpr std::array<FieldLayout, 9> fields() const {
        return {Kennung,         Verfahren,         strBNRAb,    EmpfaengerBetriebsnummer, Version, Erstellt,
                strMicroseconds, Fehlerkennzeichen, Fehleranzahl};
    }
};

// The names of a contact person's five texts and of the employer's seven,
// as the data object spells them.
struct ContactNames {
    std::string_view anrede, name, tel, fax, email;
    std::string_view name1, name2, name3, plz, ort, strasse, hausnummer;
};

// The contact-person block's fields, whichever block it is (DBAP, DBAA).
namespace Contact {
inline constexpr FieldLayout Kennung{"identifier", 1, 4, FieldKind::Literal};
inline constexpr FieldLayout Anrede{"anrede", 5, 1, FieldKind::An};
inline constexpr FieldLayout Name{"name", 6, 30, FieldKind::An};
inline constexpr FieldLayout Tel{"tel", 36, 20, FieldKind::An};
inline constexpr FieldLayout Fax{"fax", 56, 20, FieldKind::An};
inline constexpr FieldLayout EMail{"email", 76, 70, FieldKind::An};
inline constexpr FieldLayout Name1{"name1", 146, 30, FieldKind::An};
inline constexpr FieldLayout Name2{"name2", 176, 30, FieldKind::An};
inline constexpr FieldLayout Name3{"name3", 206, 30, FieldKind::An};
inline constexpr FieldLayout PLZ{"plz", 236, 10, FieldKind::An};
inline constexpr FieldLayout Ort{"ort", 246, 34, FieldKind::An};
inline constexpr FieldLayout Strasse{"strasse", 280, 33, FieldKind::An};
inline constexpr FieldLayout Hausnummer{"hausnummer", 313, 9, FieldKind::An};
inline constexpr std::array kFields{Kennung, Anrede, Name, Tel, Fax,     EMail,     Name1,
                                    Name2,   Name3,  PLZ,  Ort, Strasse, Hausnummer};
inline constexpr std::uint16_t kLength = 321;
}  // namespace Contact

// The block `id` with the fields named as its data object names them.
constexpr std::array<FieldLayout, 13> contact_block(std::string_view id, const ContactNames& n) {
    std::array<FieldLayout, 13> f = Contact::kFields;
    f[0].literal = id;
    const std::string_view names[] = {n.anrede, n.name,  n.tel, n.fax, n.email,   n.name1,
                                      n.name2,  n.name3, n.plz, n.ort, n.strasse, n.hausnummer};
    for (std::size_t i = 0; i < std::size(names); ++i) f[i + 1].name = names[i];
    return f;
}

}  // namespace tamrel::layouts
