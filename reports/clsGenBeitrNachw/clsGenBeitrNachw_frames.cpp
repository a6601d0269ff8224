#include "core/frames.h"
#include "core/text.h"
#include "reports/clsGenBeitrNachw/clsGenBeitrNachw.h"

namespace tamrel {
namespace {
std::string_view frame_code(std::int32_t enmVerfahren) { return enmVerfahren == bnBNV ? "BWBNV" : "BWNAC"; }
}  // namespace

std::string clsGenBeitrNachw::GenVOSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                                      std::int32_t enmVerfahren, std::string_view strFirma, std::string& strDatum,
                                      const Date& datDate) const {
    return call(with_args("clsGenBeitrNachw.GenVOSZ(", strBNRAb, strBNREm, strFileNr, enmVerfahren, strFirma, strDatum,
                          datDate),
                [&](int& line) {
                    line = 1;
                    if (enmVerfahren == bnEmpfBkn) IsEmpfBkn(strBNREm);  // consulted; the code depends on 4 alone
                    line = 2;
                    return mlGen::GenVOSZ(frame_code(enmVerfahren), strBNRAb, strBNREm, strFileNr, strFirma, strDatum,
                                          datDate, "01");
                });
}

std::string clsGenBeitrNachw::GenDSKO(DSKOData& udtDSKOData, std::int32_t enmVerfahren, const Date& datDate) const {
    return call(with_args("clsGenBeitrNachw.GenDSKO(", ObjArg{"udtDSKOData"}, enmVerfahren, datDate), [&](int& line) {
        line = 1;
        return mlGen::GenDSKO(udtDSKOData, frame_code(enmVerfahren), datDate);
    });
}

std::string clsGenBeitrNachw::GenNCSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                                      std::string_view strCount, std::int32_t enmVerfahren, const Date& datDate) const {
    return call(with_args("clsGenBeitrNachw.GenNCSZ(", strBNRAb, strBNREm, strFileNr, strCount, enmVerfahren, datDate),
                [&](int& line) {
                    line = 1;
                    return mlGen::GenNCSZ(frame_code(enmVerfahren), strBNRAb, strBNREm, strFileNr, strCount, datDate,
                                          "01");
                });
}

bool clsGenBeitrNachw::IsEmpfBkn(std::string_view strBNR) const {
    return routine(with_args("clsGenBeitrNachw.IsEmpfBkn(", strBNR), [&](int& line) {
        line = 1;
        const ObjectTests& t = current_host().tests;
        bool first = t.EmpfBknTest1 ? t.EmpfBknTest1(strBNR) : false;
        line = 2;
        bool second = t.EmpfBknTest2 ? t.EmpfBknTest2(strBNR) : false;
        return first || second;
    });
}

std::string clsGenBeitrNachw::ChangeDate(std::string_view strDate) {
    return routine(with_args("clsGenBeitrNachw.ChangeDate(", strDate), [&](int& line) {
        line = 1;
        std::string out;
        out.append(text::mid(strDate, 7, 2)).append(text::mid(strDate, 5, 2)).append(text::mid(strDate, 1, 4));
        return out;
    });
}

}  // namespace tamrel
