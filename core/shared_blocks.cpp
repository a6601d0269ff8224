#include "core/shared_blocks.h"

#include "core/routine.h"
#include "core/writer.h"

namespace tamrel::mlGen {

void AppendNameBlock(std::string& out, NameView n, std::string_view marker, std::string_view context) {
    routine(context, [&](int& line) {
        Writer w(out, line);
        w.lit("DBNA").an(n.familienname, 30).an(n.vorname, 30).an(n.vorsatzwort, 20).an(n.namenszusatz, 20);
        w.an(n.titel, 20).an(marker, 1);
        w.check(125, "DBNA");
    });
}

void AppendAddressBlock(std::string& out, const Vorgang& v, bool blank_d, bool& filled, std::string_view context) {
    routine(context, [&](int& line) {
        Writer w(out, line, filled);
        w.lit("DBAN").an(blank_d && std::string_view(v.Land) == "D" ? std::string_view{} : std::string_view(v.Land), 3);
        w.an(v.PLZ, 10).an(v.Ort, 34).an(v.Strasse, 33).an(v.Hausnummer, 9).an(v.Adresszusatz, 40);
        w.check(133, "DBAN");
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
        w.lit("DBGB").an(v.Geburtsname, 30).an(v.GeburtsVorsatzwort, 20).an(v.GeburtsNamenszusatz, 20);
        w.n(v.Geburtsdatum, 8).an(v.Geschlecht, 1).an(v.Geburtsort, 34);
        w.check(117, "DBGB");
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
