// Header and trailer fragments of the XML report ("KOTKV").
#include "core/date_fields.h"
#include "core/xml_encoders.h"
#include "xml/clsGenAsyl/clsGenAsyl.h"

namespace tamrel {
namespace {

// The elements that header and trailer share; `last` is the header's
// sender name or the trailer's record count.
std::string frame(std::string_view tag, std::string_view strBNRAb, std::string_view strBNREm, std::string_view date,
                  std::string_view strFileNr, std::string_view lastName, std::string_view last) {
    bool scratch = true;
    std::string out;
    out.append("<").append(tag).append("><vfmm>KOTKV</vfmm>");
    mlGen::AppendAnXML(out, "bbnrab", strBNRAb, scratch);
    mlGen::AppendAnXML(out, "bbnrep", strBNREm, scratch);
    mlGen::AppendDateXML(out, "ed", date, scratch);
    mlGen::AppendAnXML(out, "dtnr", strFileNr, scratch);
    mlGen::AppendAnXML(out, lastName, last, scratch);
    out.append("<vernr>01</vernr></").append(tag).append(">");
    return out;
}

}  // namespace

std::string clsGenAsyl::GenVOSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                                std::string_view strFirma, std::int32_t enmVerfahren, std::string& strDatum,
                                const Date& datDate) const {
    return call(
        with_args("clsGenAsyl.GenVOSZ(", strBNRAb, strBNREm, strFileNr, strFirma, enmVerfahren, strDatum, datDate),
        [&](int& line) {
            line = 1;
            Date date = mlGen::GetDate(datDate);
            line = 2;
            if (strDatum.empty()) strDatum = mlGlobal::GetCurrDate({}, 0, date);
            line = 3;
            return frame("vosz", strBNRAb, strBNREm, strDatum, strFileNr, "naab", strFirma);
        });
}

std::string clsGenAsyl::GenNCSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                                std::string_view strCount, const Date& datDate) const {
    return call(with_args("clsGenAsyl.GenNCSZ(", strBNRAb, strBNREm, strFileNr, strCount, datDate), [&](int& line) {
        line = 1;
        std::string stamp = mlGlobal::GetCurrDate({}, 0, mlGen::GetDate(datDate));
        line = 2;
        return frame("ncsz", strBNRAb, strBNREm, stamp, strFileNr, "zlsz", strCount);
    });
}

}  // namespace tamrel
