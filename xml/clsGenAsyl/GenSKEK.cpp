// The data element of the XML report: the record SKEK and the seven blocks,
// each writing its elements in the order of its layout.
#include "core/date_fields.h"
#include "core/decimal.h"
#include "core/routine.h"
#include "core/text.h"
#include "core/text_fields.h"
#include "core/version_number.h"
#include "xml/clsGenAsyl/Asyl.h"
#include "xml/clsGenAsyl/clsGenAsyl.h"
#include "xml/clsGenAsyl/xml_block.h"

namespace tamrel {
namespace {

namespace L = layouts::asyl;

void GenSKEK(std::string& out, const Asyl& a, const DatensatzData& dd, const Date& date) {
    routine("clsGenAsyl.GenSKEK", [&](int& line) {
        line = 1;
        bool scratch = false;
        std::string stamp;
        mlGen::AppendN(stamp, mlGlobal::GetCurrDate(a.ErstellDatum, 1, date), 14, scratch);
        mlGen::AppendN(stamp, dd.strMicroseconds, 6, scratch);
        const VersionNumber id(dd.strVersion, a.DatensatzNr);
        line = 2;
        XmlBlock b(out, "skek", false);
        b.fixed("<vfmm>DS264</vfmm>").an("bbnrab", dd.strBNRAb).an("bbnrep", a.Empfaenger.Betriebsnummer);
        b.fixed("<vernr>01</vernr>").date("ed", stamp).elements(L::kSKEK, a).an("ds-id", id);
        b.close();
    });
}

template <class Fill>
void block(std::string& out, const char* context, std::string_view name, bool nilable, Fill&& fill) {
    routine(context, [&](int& line) {
        line = 1;
        XmlBlock b(out, name, nilable);
        fill(b);
        b.close();
    });
}

}  // namespace

std::string clsGenAsyl::GenData(const Asyl& a, DatensatzData& dd, const Date& datDate) const {
    return call(
        with_args("clsGenAsyl.GenData(", ObjArg{"objAsyl"}, ObjArg{"udtDatensatzData"}, datDate), [&](int& line) {
            line = 1;
            const Date date = mlGen::GetDate(datDate);
            std::string out;
            out.reserve(4096);  // all eight blocks with every element given
            out += "<daten>";
            line = 2;
            GenSKEK(out, a, dd, date);
            line = 3;
            block(out, "clsGenAsyl.GenBMGD", "bmgd", false, [&](XmlBlock& b) { b.elements(L::kPerson, a.Mgd); });
            line = 4;
            block(out, "clsGenAsyl.GenBANG", "bang", true,
                  [&](XmlBlock& b) { b.elements(L::kBANG, a).elements(L::kPerson, a.Ang); });
            line = 5;
            block(out, "clsGenAsyl.GenBZRM", "bzrm", true, [&](XmlBlock& b) { b.elements(L::kBZRM, a); });
            line = 6;
            block(out, "clsGenAsyl.GenBBTR", "bbtr", true, [&](XmlBlock& b) { b.elements(L::kAddress, a.Btr); });
            line = 7;
            block(out, "clsGenAsyl.GenBAPK", "bapk", false, [&](XmlBlock& b) { b.elements(L::kBAPK, a); });
            line = 8;
            block(out, "clsGenAsyl.GenBZGK", "bzgk", true, [&](XmlBlock& b) { b.elements(L::kAddress, a.Zgk); });
            line = 9;
            block(out, "clsGenAsyl.GenBIMG", "bimg", true, [&](XmlBlock& b) {
                b.side("dateina", dd.strDateiname).elements(L::kBIMG, a);
                b.side("prueflbilddatei", mlGen::Decimal(static_cast<std::int64_t>(text::char_count(a.Bilddatei))));
            });
            out += "</daten>";
            return out;
        });
}

}  // namespace tamrel
