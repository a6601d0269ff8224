// Header and trailer fragments of the XML report ("KOTKV").
#include "core/mlGen.h"
#include "core/xml_encoders.h"
#include "xml/clsGenAsyl/clsGenAsyl.h"

namespace tamrel {

std::string clsGenAsyl::GenVOSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                                std::string_view strFirma, std::int32_t, std::string& strDatum,
                                const Date& datDate) const {
    return call("clsGenAsyl.GenVOSZ", [&](int& line) {
        line = 1;
        Date date = mlGen::GetDate(datDate);
        line = 2;
        if (strDatum.empty()) strDatum = mlGlobal::GetCurrDate({}, 0, date);
        line = 3;
        bool scratch = true;
        std::string out = "<vosz><vfmm>KOTKV</vfmm>";
        mlGen::AppendAnXML(out, "bbnrab", strBNRAb, scratch);
        mlGen::AppendAnXML(out, "bbnrep", strBNREm, scratch);
        mlGen::AppendDateXML(out, "ed", strDatum, scratch);
        mlGen::AppendAnXML(out, "dtnr", strFileNr, scratch);
        mlGen::AppendAnXML(out, "naab", strFirma, scratch);
        out += "<vernr>01</vernr></vosz>";
        return out;
    });
}

std::string clsGenAsyl::GenNCSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                                std::string_view strCount, const Date& datDate) const {
    return call("clsGenAsyl.GenNCSZ", [&](int& line) {
        line = 1;
        std::string stamp = mlGlobal::GetCurrDate({}, 0, mlGen::GetDate(datDate));
        line = 2;
        bool scratch = true;
        std::string out = "<ncsz><vfmm>KOTKV</vfmm>";
        mlGen::AppendAnXML(out, "bbnrab", strBNRAb, scratch);
        mlGen::AppendAnXML(out, "bbnrep", strBNREm, scratch);
        mlGen::AppendDateXML(out, "ed", stamp, scratch);
        mlGen::AppendAnXML(out, "dtnr", strFileNr, scratch);
        mlGen::AppendAnXML(out, "zlsz", strCount, scratch);
        out += "<vernr>01</vernr></ncsz>";
        return out;
    });
}

}  // namespace tamrel
