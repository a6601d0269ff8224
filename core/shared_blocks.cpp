#include "core/shared_blocks.h"

#include "core/routine.h"
#include "core/shared_block_layouts.h"
#include "core/writer.h"

namespace tamrel::mlGen {

using namespace layouts;

void AppendNameBlock(std::string& out, NameView n, std::string_view marker, std::string_view context) {
    routine(context, [&](int& line) {
        Writer w(out, line);
        w.put(DBNA::Kennung).put(DBNA::Familienname, n.familienname).put(DBNA::Vorname, n.vorname);
        w.put(DBNA::Vorsatzwort, n.vorsatzwort).put(DBNA::Namenszusatz, n.namenszusatz).put(DBNA::Titel, n.titel);
        w.put(DBNA::Marker, marker);
        w.check(kDBNA);
    });
}

void AppendAddressBlock(std::string& out, const Vorgang& v, bool blank_d, bool& filled, std::string_view context) {
    routine(context, [&](int& line) {
        Writer w(out, line, filled);
        w.put(DBAN::Kennung);
        w.put(DBAN::Land, blank_d && std::string_view(v.Land) == "D" ? std::string_view{} : std::string_view(v.Land));
        w.put(DBAN::PLZ, v.PLZ).put(DBAN::Ort, v.Ort).put(DBAN::Strasse, v.Strasse);
        w.put(DBAN::Hausnummer, v.Hausnummer).put(DBAN::Adresszusatz, v.Adresszusatz);
        w.check(kDBAN);
    });
}

void AppendDBNA(std::string& out, const Vorgang& v, bool marker) {
    AppendNameBlock(out, NameView(v), marker ? "A" : " ", "mlGen.GenDBNA");
}

void AppendDBAN(std::string& out, const Vorgang& v, bool& filled) {
    AppendAddressBlock(out, v, true, filled, "mlGen.GenDBAN");
}

void AppendDBGB(std::string& out, const Vorgang& v) {
    routine("mlGen.GenDBGB", [&](int& line) {
        Writer w(out, line);
        w.put(DBGB::Kennung).put(DBGB::Geburtsname, v.Geburtsname);
        w.put(DBGB::GeburtsVorsatzwort, v.GeburtsVorsatzwort).put(DBGB::GeburtsNamenszusatz, v.GeburtsNamenszusatz);
        w.put(DBGB::Geburtsdatum, v.Geburtsdatum).put(DBGB::Geschlecht, v.Geschlecht);
        w.put(DBGB::Geburtsort, v.Geburtsort);
        w.check(kDBGB);
    });
}

std::string GenDBNA(const Vorgang& v, bool marker) {
    std::string out;
    AppendDBNA(out, v, marker);
    return out;
}

std::string GenDBAN(const Vorgang& v, bool& filled) {
    std::string out;
    AppendDBAN(out, v, filled);
    return out;
}

}  // namespace tamrel::mlGen
