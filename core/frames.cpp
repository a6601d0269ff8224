#include "core/frames.h"

#include "core/check_length.h"
#include "core/date_fields.h"
#include "core/frame_layouts.h"
#include "core/routine.h"
#include "core/text_fields.h"
#include "core/writer.h"

namespace tamrel::mlGen {

using namespace layouts;

std::string GenVOSZHead(std::string_view code, std::string_view sender, std::string_view receiver,
                        std::string_view fileNr, std::string_view dateText) {
    return routine(with_args("mlGen.GenVOSZHead(", code, sender, receiver, fileNr, dateText), [&](int& line) {
        std::string out;
        Writer w(out, line);
        w.put(VOSZ::Kennung).text(VOSZ::Verfahren, code).put(VOSZ::strBNRAb, sender).put(VOSZ::strBNREm, receiver);
        w.put(VOSZ::strDatum, dateText).put(VOSZ::strFileNr, fileNr);
        w.end();
        return out;
    });
}

std::string GenVOSZ(std::string_view code, std::string_view sender, std::string_view receiver, std::string_view fileNr,
                    std::string_view senderName, std::string& dateText, const Date& date, std::string_view version) {
    return routine(with_args("mlGen.GenVOSZ(", code, sender, receiver, fileNr, senderName, dateText, date, version),
                   [&](int& line) {
                       line = 1;
                       Date d = GetDate(date);
                       line = 2;
                       if (dateText.empty()) dateText = mlGlobal::GetCurrDate({}, 0, d);
                       line = 3;
                       std::string out = GenVOSZHead(code, sender, receiver, fileNr, dateText);
                       bool filled = false;
                       AppendAn(out, senderName, VOSZ::strFirma.len, filled);
                       AppendN(out, version, VOSZ::Version.len, filled);
                       line = 4;
                       CheckLength(out, kVOSZ.length, kVOSZ.id);
                       return out;
                   });
}

std::string GenNCSZHead(std::string_view code, std::string_view sender, std::string_view receiver,
                        std::string_view fileNr, std::string_view count, std::string_view dateText) {
    return routine(with_args("mlGen.GenNCSZHead(", code, sender, receiver, fileNr, count, dateText), [&](int& line) {
        std::string out;
        Writer w(out, line);
        w.put(NCSZ::Kennung).text(NCSZ::Verfahren, code).put(NCSZ::strBNRAb, sender).put(NCSZ::strBNREm, receiver);
        w.put(NCSZ::Datum, dateText).put(NCSZ::strFileNr, fileNr).put(NCSZ::strCount, count);
        w.end();
        return out;
    });
}

std::string GenNCSZ(std::string_view code, std::string_view sender, std::string_view receiver, std::string_view fileNr,
                    std::string_view count, const Date& date, std::string_view version) {
    return routine(with_args("mlGen.GenNCSZ(", code, sender, receiver, fileNr, count, date, version), [&](int& line) {
        line = 1;
        std::string dateText = mlGlobal::GetCurrDate({}, 0, GetDate(date));
        line = 2;
        std::string out = GenNCSZHead(code, sender, receiver, fileNr, count, dateText);
        out += version;
        line = 3;
        CheckLength(out, kNCSZ.length, kNCSZ.id);
        return out;
    });
}

std::string GenDSKO(DSKOData& data, std::string_view code, const Date& date) {
    return routine(with_args("mlGen.GenDSKO(", ObjArg{"udtDSKOData"}, code, date), [&](int& line) {
        std::string out;
        out.reserve(kDSKO.length);
        Writer w(out, line);
        w.put(DSKO::Kennung).put(DSKO::Verfahren, code).put(DSKO::strBNRAb, data.strBNRAb);
        w.put(DSKO::strBNREm, data.strBNREm).put(DSKO::Version);
        w.stamp(DSKO::Erstellt, {}, 1, GetDate(date)).put(DSKO::strMicroSec, data.strMicroSec);
        w.put(DSKO::Fehlerkennzeichen).put(DSKO::Fehleranzahl);
        w.put(DSKO::Verursacher, data.strBNRAb).put(DSKO::strProdID, data.strProdID).put(DSKO::strModID, data.strModID);
        w.put(DSKO::strName1, data.strName1).put(DSKO::strName2, data.strName2).put(DSKO::strName3, data.strName3);
        w.put(DSKO::strPLZ, data.strPLZ).put(DSKO::strOrt, data.strOrt).put(DSKO::strStrasse, data.strStrasse);
        w.put(DSKO::strHausNr, data.strHausNr).put(DSKO::strAnGeschl, data.strAnGeschl);
        w.put(DSKO::strAnName, data.strAnName).put(DSKO::strAnTel, data.strAnTel).put(DSKO::strAnFax, data.strAnFax);
        w.put(DSKO::strAnEMail, data.strAnEMail).put(DSKO::Reserve);
        w.check(kDSKO);
        return out;
    });
}

}  // namespace tamrel::mlGen
