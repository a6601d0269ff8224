#include "core/frames.h"

#include "core/check_length.h"
#include "core/date_fields.h"
#include "core/routine.h"
#include "core/text_fields.h"
#include "core/writer.h"

namespace tamrel::mlGen {

std::string GenVOSZHead(std::string_view code, std::string_view sender, std::string_view receiver,
                        std::string_view fileNr, std::string_view dateText) {
    return routine(with_args("mlGen.GenVOSZHead(", code, sender, receiver, fileNr, dateText), [&](int& line) {
        std::string out;
        Writer w(out, line);
        w.lit("VOSZ").lit(code).an(sender, 15).an(receiver, 15).n(dateText, 8).n(fileNr, 6);
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
                       AppendAn(out, senderName, 50, filled);
                       AppendN(out, version, 2, filled);
                       line = 4;
                       CheckLength(out, 105, "VOSZ");
                       return out;
                   });
}

std::string GenNCSZHead(std::string_view code, std::string_view sender, std::string_view receiver,
                        std::string_view fileNr, std::string_view count, std::string_view dateText) {
    return routine(with_args("mlGen.GenNCSZHead(", code, sender, receiver, fileNr, count, dateText), [&](int& line) {
        std::string out;
        Writer w(out, line);
        w.lit("NCSZ").lit(code).an(sender, 15).an(receiver, 15).n(dateText, 8).n(fileNr, 6).n(count, 8);
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
        CheckLength(out, 63, "NCSZ");
        return out;
    });
}

std::string GenDSKO(DSKOData& data, std::string_view code, const Date& date) {
    return routine(with_args("mlGen.GenDSKO(", ObjArg{"udtDSKOData"}, code, date), [&](int& line) {
        std::string out;
        out.reserve(415);
        Writer w(out, line);
        w.lit("DSKO").an(code, 5).an(data.strBNRAb, 15).an(data.strBNREm, 15).lit("04");
        w.stamp({}, 1, GetDate(date), 14).n(data.strMicroSec, 6).lit("0").lit("0");
        w.an(data.strBNRAb, 15).an(data.strProdID, 7).an(data.strModID, 8);
        w.an(data.strName1, 30).an(data.strName2, 30).an(data.strName3, 30);
        w.an(data.strPLZ, 10).an(data.strOrt, 34).an(data.strStrasse, 33).an(data.strHausNr, 9);
        w.an(data.strAnGeschl, 1).an(data.strAnName, 30).an(data.strAnTel, 20).an(data.strAnFax, 20);
        w.an(data.strAnEMail, 70).blank(5);
        w.check(415, "DSKO");
        return out;
    });
}

}  // namespace tamrel::mlGen
