// The checks of the frame records and what every report shares.
#include "checks/checks.h"
#include "checks/field_checks.h"
#include "checks/rules.h"
#include "core/frame_layouts.h"
#include "reports/clsGenBeitrErh/DSBE_layout.h"

namespace tamrel::checks {

namespace {

constexpr std::size_t kFileNrWidth = layouts::VOSZ::strFileNr.len;
constexpr std::size_t kMicroSecWidth = layouts::DSKO::strMicroSec.len;
constexpr std::size_t kMicrosecondsWidth = layouts::beitrerh::DSBE::strMicroseconds.len;

// A party of the communication record: the header's.
void same_party(const FieldChecks& c, std::string_view name, std::string_view value, std::string_view header) {
    c.establishment(name, value);
    if (!value.empty() && value != header) c.add(kFileParties, name, value);
}

}  // namespace

void check_frame(const FrameFields& v, Findings& f) {
    const FieldChecks c(f);
    c.establishment("strBNRAb", v.strBNRAb);
    c.establishment("strBNREm", v.strBNREm);
    c.number("strFileNr", v.strFileNr, kFileNrWidth);
    c.date("strDatum", v.strDatum);
    if (v.enmVerfahren && (*v.enmVerfahren < vmNormal || *v.enmVerfahren > vmBV))
        c.add(kProcedureKey, "enmVerfahren", std::to_string(*v.enmVerfahren));
    if (v.dsko) {
        same_party(c, "udtDSKOData.strBNRAb", v.dsko->strBNRAb, v.strBNRAb);
        same_party(c, "udtDSKOData.strBNREm", v.dsko->strBNREm, v.strBNREm);
        c.number("udtDSKOData.strMicroSec", v.dsko->strMicroSec, kMicroSecWidth);
    }
    if (v.datensatz) {
        c.betriebsnummer("udtDatensatzData.strBNRAb", v.datensatz->strBNRAb);
        c.number("udtDatensatzData.strMicroseconds", v.datensatz->strMicroseconds, kMicrosecondsWidth);
    }
}

}  // namespace tamrel::checks
