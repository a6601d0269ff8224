#include "checks/record_layouts.h"

#include <vector>

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

using namespace layouts;

// The data records of each class, in the order of the class list.
constexpr const RecordLayout* kMeldung[] = {&meldung::kDSME};
constexpr const RecordLayout* kBeitrNachw[] = {&beitrnachw::kBW02, &beitrnachw::kBW03};
constexpr const RecordLayout* kBeitrErh[] = {&beitrerh::kDSBE};
constexpr const RecordLayout* kErst[] = {&erst::kDSER};
constexpr const RecordLayout* kZahl[] = {&zahl::kDSVZ};
constexpr const RecordLayout* kArbeitsBesch[] = {&bea::kDSAB, &bea::kDSEU, &bea::kDSNE};
constexpr const RecordLayout* kEntgelt[] = {&eel::kDSLW};
constexpr const RecordLayout* kBetrieb[] = {&betrieb::kDSBD};
constexpr const RecordLayout* kAbfrVers[] = {&abfrvers::kDSVV};
constexpr const RecordLayout* kAbfrStammdatenUV[] = {&uv::kDSAS};
constexpr const RecordLayout* kLohnnachweis[] = {&uv::kDSLN};

struct ClassRecords {
    std::string_view cls;
    std::span<const RecordLayout* const> records;
};
constexpr ClassRecords kClasses[] = {
    {"clsGenMeldung", kMeldung},
    {"clsGenBeitrNachw", kBeitrNachw},
    {"clsGenBeitrErh", kBeitrErh},
    {"clsGenErst", kErst},
    {"clsGenZahl", kZahl},
    {"clsGenArbeitsBesch", kArbeitsBesch},
    {"clsGenEntgelt", kEntgelt},
    {"clsGenBetrieb", kBetrieb},
    {"clsGenAbfrVers", kAbfrVers},
    {"clsGenAbfrStammdatenUV", kAbfrStammdatenUV},
    {"clsGenLohnnachweis", kLohnnachweis},
};

// The frame records, then every class's data records.
const std::vector<const RecordLayout*>& all() {
    static const std::vector<const RecordLayout*> layouts = [] {
        std::vector<const RecordLayout*> v{&kVOSZ, &kDSKO, &kNCSZ};
        for (const ClassRecords& c : kClasses) v.insert(v.end(), c.records.begin(), c.records.end());
        return v;
    }();
    return layouts;
}

}  // namespace

std::span<const RecordLayout* const> record_layouts() { return all(); }

std::span<const RecordLayout* const> data_records_of(std::string_view cls) {
    for (const ClassRecords& c : kClasses)
        if (c.cls == cls) return c.records;
    return {};
}

const RecordLayout* find_layout(std::u32string_view record) {
    if (record.size() < 4) return nullptr;
    for (const RecordLayout* l : all())
        if (record[0] == static_cast<unsigned char>(l->id[0]) && record[1] == static_cast<unsigned char>(l->id[1]) &&
            record[2] == static_cast<unsigned char>(l->id[2]) && record[3] == static_cast<unsigned char>(l->id[3]))
            return l;
    return nullptr;
}

}  // namespace tamrel::checks
