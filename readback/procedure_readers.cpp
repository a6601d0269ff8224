#include "readback/procedure_readers.h"

#include "certificates/clsGenArbeitsBesch/ArbeitsBesch_properties.h"
#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "certificates/clsGenEntgelt/Entgelt_properties.h"
#include "certificates/clsGenEntgelt/clsGenEntgelt.h"
#include "queries/clsGenAbfrStammdatenUV/AbfrStammdatenUV_properties.h"
#include "queries/clsGenAbfrStammdatenUV/clsGenAbfrStammdatenUV.h"
#include "queries/clsGenAbfrVers/AbfrVers_properties.h"
#include "queries/clsGenAbfrVers/clsGenAbfrVers.h"
#include "queries/clsGenBetrieb/Betrieb_properties.h"
#include "queries/clsGenBetrieb/clsGenBetrieb.h"
#include "queries/clsGenLohnnachweis/Lohnnachweis_properties.h"
#include "queries/clsGenLohnnachweis/clsGenLohnnachweis.h"
#include "readback/record_forms.h"
#include "reports/clsGenBeitrErh/BeitrErh_properties.h"
#include "reports/clsGenBeitrErh/clsGenBeitrErh.h"
#include "reports/clsGenBeitrNachw/BeitrNachw_properties.h"
#include "reports/clsGenBeitrNachw/clsGenBeitrNachw.h"
#include "reports/clsGenErst/Erst_properties.h"
#include "reports/clsGenErst/clsGenErst.h"
#include "reports/clsGenMeldung/Meldung_properties.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"
#include "reports/clsGenZahl/Zahl_properties.h"
#include "reports/clsGenZahl/clsGenZahl.h"

namespace tamrel::readback {
namespace {

// What the declarations place, then what the procedure writes in a form of
// its own (record_forms.h).
template <class T>
void read_as(std::u32string_view line, std::span<const checks::Part> parts, ReadReport& out) {
    T obj{};
    const std::vector<ReadField> left = read_declared(obj, line, parts, out.frame);
    read_own_forms(obj, left, parts, out.frame);
    out.json = to_json(obj);
}

struct Entry {
    ProcedureReader reader;
    std::span<const RecordLayout* const> records;
};

template <class Gen, class T>
Entry entry(std::string_view cls) {
    return {{cls, &read_as<T>}, Gen::kRecords};
}

const std::vector<Entry>& entries() {
    static const std::vector<Entry> all = {
        entry<clsGenMeldung, Meldung>("clsGenMeldung"),
        entry<clsGenBeitrNachw, BeitrNachw>("clsGenBeitrNachw"),
        entry<clsGenBeitrErh, BeitrErh>("clsGenBeitrErh"),
        entry<clsGenErst, Erst>("clsGenErst"),
        entry<clsGenZahl, Zahl>("clsGenZahl"),
        entry<clsGenArbeitsBesch, ArbeitsBesch>("clsGenArbeitsBesch"),
        entry<clsGenEntgelt, Entgelt>("clsGenEntgelt"),
        entry<clsGenBetrieb, Betrieb>("clsGenBetrieb"),
        entry<clsGenAbfrVers, AbfrVers>("clsGenAbfrVers"),
        entry<clsGenAbfrStammdatenUV, AbfrStammdatenUV>("clsGenAbfrStammdatenUV"),
        entry<clsGenLohnnachweis, Lohnnachweis>("clsGenLohnnachweis"),
    };
    return all;
}

}  // namespace

const ProcedureReader* reader_for_record(const RecordLayout& record) {
    for (const Entry& e : entries())
        for (const RecordLayout* r : e.records)
            if (r == &record || r->id == record.id) return &e.reader;
    return nullptr;
}

}  // namespace tamrel::readback
