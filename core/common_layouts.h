// Fields that several records and blocks share, declared once: the first
// 63 positions of most data records, and the contact-person block that
// core/contact_block.cpp builds (DBAP, DBAA).
#pragma once
#include "core/layout.h"

namespace tamrel::layouts {

// Identifier, procedure, sender, Empfaenger, version, creation time (named
// after the property it comes from), microseconds, error marker and count.
constexpr std::array<FieldLayout, 9> record_head(std::string_view id, std::string_view procedure,
                                                 std::string_view version, std::string_view created) {
    return {{
        layout::lit("identifier", 1, id),
        layout::lit("procedure", 5, procedure),
        {"DatensatzData.strBNRAb", 10, 15, FieldKind::Bnr},
        {"Empfaenger.Betriebsnummer", 25, 15, FieldKind::Bnr},
        layout::lit("version", 40, version),
        {created, 42, 14, FieldKind::DateTime},
        {"DatensatzData.strMicroseconds", 56, 6, FieldKind::N},
        layout::lit("error marker", 62, "0"),
        layout::lit("number of errors", 63, "0"),
    }};
}

// The names of a contact person's five texts and of the employer's seven,
// as the data object spells them.
struct ContactNames {
    std::string_view anrede, name, tel, fax, email;
    std::string_view name1, name2, name3, plz, ort, strasse, hausnummer;
};

constexpr std::array<FieldLayout, 13> contact_block(std::string_view id, const ContactNames& n) {
    return {{
        layout::lit("identifier", 1, id),
        {n.anrede, 5, 1, FieldKind::An},
        {n.name, 6, 30, FieldKind::An},
        {n.tel, 36, 20, FieldKind::An},
        {n.fax, 56, 20, FieldKind::An},
        {n.email, 76, 70, FieldKind::An},
        {n.name1, 146, 30, FieldKind::An},
        {n.name2, 176, 30, FieldKind::An},
        {n.name3, 206, 30, FieldKind::An},
        {n.plz, 236, 10, FieldKind::An},
        {n.ort, 246, 34, FieldKind::An},
        {n.strasse, 280, 33, FieldKind::An},
        {n.hausnummer, 313, 9, FieldKind::An},
    }};
}

}  // namespace tamrel::layouts
