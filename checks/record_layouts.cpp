#include "checks/record_layouts.h"

#include "certificates/clsGenArbeitsBesch/DSAB_layout.h"
#include "certificates/clsGenEntgelt/DSLW_layout.h"
#include "core/frame_layouts.h"
#include "queries/clsGenAbfrStammdatenUV/DSAS_layout.h"
#include "queries/clsGenAbfrVers/DSVV_layout.h"
#include "queries/clsGenBetrieb/DSBD_layout.h"
#include "queries/clsGenLohnnachweis/DSLN_layout.h"
#include "reports/clsGenBeitrErh/DSBE_layout.h"
#include "reports/clsGenBeitrNachw/BW02_layout.h"
#include "reports/clsGenErst/DSER_layout.h"
#include "reports/clsGenMeldung/DSME_layout.h"
#include "reports/clsGenZahl/DSVZ_layout.h"

namespace tamrel::checks {
namespace {

constexpr const RecordLayout* kAll[] = {
    &layouts::kVOSZ,
    &layouts::kDSKO,
    &layouts::kNCSZ,
    &layouts::meldung::kDSME,
    &layouts::beitrnachw::kBW02,
    &layouts::beitrnachw::kBW03,
    &layouts::beitrerh::kDSBE,
    &layouts::erst::kDSER,
    &layouts::zahl::kDSVZ,
    &layouts::bea::kDSAB,
    &layouts::bea::kDSEU,
    &layouts::bea::kDSNE,
    &layouts::eel::kDSLW,
    &layouts::betrieb::kDSBD,
    &layouts::abfrvers::kDSVV,
    &layouts::uv::kDSAS,
    &layouts::uv::kDSLN,
};

}  // namespace

std::span<const RecordLayout* const> record_layouts() { return kAll; }

const RecordLayout* find_layout(std::u32string_view record) {
    if (record.size() < 4) return nullptr;
    for (const RecordLayout* l : kAll)
        if (record[0] == static_cast<unsigned char>(l->id[0]) && record[1] == static_cast<unsigned char>(l->id[1]) &&
            record[2] == static_cast<unsigned char>(l->id[2]) && record[3] == static_cast<unsigned char>(l->id[3]))
            return l;
    return nullptr;
}

}  // namespace tamrel::checks
