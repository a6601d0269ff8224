#include "core/generator.h"

#include "core/frames.h"

namespace tamrel {

std::string FrameGenerator::GenVOSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                                    std::string_view strFirma, std::int32_t enmVerfahren, std::string& strDatum,
                                    const Date& datDate) const {
    return call(with_args(spec_.voszContext, strBNRAb, strBNREm, strFileNr, strFirma, enmVerfahren, strDatum, datDate),
                [&](int& line) {
                    line = 1;
                    return mlGen::GenVOSZ(spec_.voszCode, strBNRAb, strBNREm, strFileNr, strFirma, strDatum, datDate,
                                          "01");
                });
}

std::string FrameGenerator::GenVOSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                                    std::string_view strFirma, std::int32_t enmVerfahren) const {
    std::string strDatum;
    return GenVOSZ(strBNRAb, strBNREm, strFileNr, strFirma, enmVerfahren, strDatum);
}

std::string FrameGenerator::GenDSKO(DSKOData& udtDSKOData, const Date& datDate) const {
    return call(with_args(spec_.dskoContext, ObjArg{"udtDSKOData"}, datDate), [&](int& line) {
        line = 1;
        return mlGen::GenDSKO(udtDSKOData, spec_.dskoCode, datDate);
    });
}

std::string FrameGenerator::GenNCSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                                    std::string_view strCount, const Date& datDate) const {
    return call(with_args(spec_.ncszContext, strBNRAb, strBNREm, strFileNr, strCount, datDate), [&](int& line) {
        line = 1;
        return mlGen::GenNCSZ(spec_.voszCode, strBNRAb, strBNREm, strFileNr, strCount, datDate, "01");
    });
}

}  // namespace tamrel
