#include "core/frames.h"
#include "reports/clsGenBeitrErh/clsGenBeitrErh.h"

namespace tamrel {

std::string clsGenBeitrErh::GenVOSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                                    std::string_view strFirma, std::string& strDatum, const Date& datDate) const {
    return call(with_args("clsGenBeitrErh.GenVOSZ(", strBNRAb, strBNREm, strFileNr, strFirma, strDatum, datDate),
                [&](int& line) {
                    line = 1;
                    return mlGen::GenVOSZ("AGBVB", strBNRAb, strBNREm, strFileNr, strFirma, strDatum, datDate, "01");
                });
}

std::string clsGenBeitrErh::GenDSKO(DSKOData& udtDSKOData, const Date& datDate) const {
    return call(with_args("clsGenBeitrErh.GenDSKO(", ObjArg{"udtDSKOData"}, datDate), [&](int& line) {
        line = 1;
        return mlGen::GenDSKO(udtDSKOData, "BVBEI", datDate);
    });
}

std::string clsGenBeitrErh::GenNCSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                                    std::string_view strCount, const Date& datDate) const {
    return call(with_args("clsGenBeitrErh.GenNCSZ(", strBNRAb, strBNREm, strFileNr, strCount, datDate), [&](int& line) {
        line = 1;
        return mlGen::GenNCSZ("AGBVB", strBNRAb, strBNREm, strFileNr, strCount, datDate, "01");
    });
}

}  // namespace tamrel
