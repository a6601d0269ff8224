#include "reader/record_layouts.h"

#include <vector>

#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "certificates/clsGenEntgelt/clsGenEntgelt.h"
#include "core/frame_layouts.h"
#include "queries/clsGenAbfrStammdatenUV/clsGenAbfrStammdatenUV.h"
#include "queries/clsGenAbfrVers/clsGenAbfrVers.h"
#include "queries/clsGenBetrieb/clsGenBetrieb.h"
#include "queries/clsGenLohnnachweis/clsGenLohnnachweis.h"
#include "reports/clsGenBeitrErh/clsGenBeitrErh.h"
#include "reports/clsGenBeitrNachw/clsGenBeitrNachw.h"
#include "reports/clsGenErst/clsGenErst.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"
#include "reports/clsGenZahl/clsGenZahl.h"

namespace tamrel::checks {
namespace {

// The frame records, then the data records each class declares, in the
// order of the class list.
template <class... Gen>
std::vector<const RecordLayout*> frames_and_records_of() {
    std::vector<const RecordLayout*> v{&layouts::kVOSZ, &layouts::kDSKO, &layouts::kNCSZ};
    (v.insert(v.end(), Gen::kRecords.begin(), Gen::kRecords.end()), ...);
    return v;
}

const std::vector<const RecordLayout*>& all() {
    static const std::vector<const RecordLayout*> layouts =
        frames_and_records_of<clsGenMeldung, clsGenBeitrNachw, clsGenBeitrErh, clsGenErst, clsGenZahl,
                              clsGenArbeitsBesch, clsGenEntgelt, clsGenBetrieb, clsGenAbfrVers, clsGenAbfrStammdatenUV,
                              clsGenLohnnachweis>();
    return layouts;
}

}  // namespace

std::span<const RecordLayout* const> record_layouts() { return all(); }

const RecordLayout* find_layout(std::u32string_view record) {
    if (record.size() < 4) return nullptr;
    for (const RecordLayout* l : all())
        if (record[0] == static_cast<unsigned char>(l->id[0]) && record[1] == static_cast<unsigned char>(l->id[1]) &&
            record[2] == static_cast<unsigned char>(l->id[2]) && record[3] == static_cast<unsigned char>(l->id[3]))
            return l;
    return nullptr;
}

}  // namespace tamrel::checks
