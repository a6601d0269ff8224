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
        b.fixed("<vernr>01</vernr>").date("ed", stamp).an("bbnrvu", a.BbnrVu).n("ikko", a.Ikko).n("gd", a.Gd);
        b.n("rg", a.Rg).an("ds-id", id);
        b.close();
    });
}

// BMGD and BANG share one element order; BANG has "angart" in front.
void person(XmlBlock& b, const AsylPerson& p) {
    b.an("fmna", p.Fmna).an("vona", p.Vona).an("vosa", p.Vosa).an("nazu", p.Nazu).an("titel", p.Titel);
    b.an("plz", p.Plz).an("ort", p.Ort).an("str", p.Str).an("nr", p.Nr).an("adrzu", p.Adrzu).an("tel", p.Tel);
    b.an("email", p.Email).an("gbna", p.Gbna).an("gbvosa", p.Gbvosa).an("gbnazu", p.Gbnazu).date("gbdt", p.Gbdt);
    b.an("ge", p.Ge).an("gbot", p.Gbot).n("gbld", p.Gbld).an("aktenzeichen", p.Aktenzeichen).an("kvnr", p.Kvnr);
    b.an("vsnr", p.Vsnr).n("sasc", p.Sasc);
}

// BBTR and BZGK share one element order, "ge" last.
void address(XmlBlock& b, const AsylAddress& p) {
    b.an("fmna", p.Fmna).an("vona", p.Vona).an("vosa", p.Vosa).an("nazu", p.Nazu).an("titel", p.Titel);
    b.an("plz", p.Plz).an("ort", p.Ort).an("str", p.Str).an("nr", p.Nr).an("adrzu", p.Adrzu).an("ge", p.Ge);
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
            block(out, "clsGenAsyl.GenBMGD", "bmgd", false, [&](XmlBlock& b) { person(b, a.Mgd); });
            line = 4;
            block(out, "clsGenAsyl.GenBANG", "bang", true,
                  [&](XmlBlock& b) { person(b.n("angart", a.AngArt), a.Ang); });
            line = 5;
            block(out, "clsGenAsyl.GenBZRM", "bzrm", true,
                  [&](XmlBlock& b) { b.date("zrbg", a.ZrBeginn).date("zren", a.ZrEnde); });
            line = 6;
            block(out, "clsGenAsyl.GenBBTR", "bbtr", true, [&](XmlBlock& b) { address(b, a.Btr); });
            line = 7;
            block(out, "clsGenAsyl.GenBAPK", "bapk", false, [&](XmlBlock& b) {
                b.an("anr-ap", a.ApAnrede).an("name-ap", a.ApName).an("tel-ap", a.ApTel).an("fax-ap", a.ApFax);
                b.an("email-ap", a.ApEmail);
            });
            line = 8;
            block(out, "clsGenAsyl.GenBZGK", "bzgk", true, [&](XmlBlock& b) { address(b, a.Zgk); });
            line = 9;
            block(out, "clsGenAsyl.GenBIMG", "bimg", true, [&](XmlBlock& b) {
                b.side("dateina", dd.strDateiname).an("bilddatei", a.Bilddatei);
                b.side("prueflbilddatei", mlGen::Decimal(static_cast<std::int64_t>(text::char_count(a.Bilddatei))));
            });
            out += "</daten>";
            return out;
        });
}

}  // namespace tamrel
