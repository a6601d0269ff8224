#include "readback/procedure_readers.h"

#include "certificates/clsGenArbeitsBesch/ArbeitsBesch_properties.h"
#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "certificates/clsGenEntgelt/Entgelt_properties.h"
#include "certificates/clsGenEntgelt/clsGenEntgelt.h"
#include "core/text.h"
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
// its own (record_forms.h), then the record's own time.
template <class T>
void read_into(T& obj, const LineText& line, std::span<const checks::Part> parts, std::string_view file_created,
               ReadReport& out) {
    thread_local LeftFields left;
    read_declared(obj, line, parts, out.frame, left);
    read_own_forms(obj, std::span<const ReadField>(left.fields), parts, out.frame);
    const std::string time = own_time(out.frame, file_created.empty() ? out.frame.created : file_created);
    if (!time.empty()) assign(obj, out.frame.createdFrom, {}, time);
    write_json(obj, out.json);
}

template <class T>
bool read_as(const LineText& line, std::span<const checks::Part> parts, std::string_view file_created,
             ReportRunner* into, ReadReport& out) {
    if (T* obj = into ? object_as<T>(*into) : nullptr) {
        into->clear();
        read_into(*obj, line, parts, file_created, out);
        return true;
    }
    T own{};
    read_into(own, line, parts, file_created, out);
    return false;
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

// The stamp's text is read as year (1-4), month (5-6), day (the last two
// characters) and, from 14 characters on, the time (9-14).
std::string own_time(const RecordFrame& frame, std::string_view file_created) {
    const std::string& c = frame.created;
    if (c == file_created || frame.createdFrom.empty() || text::char_count(c) < 8) return {};
    const std::string date(text::left(c, 8)), day(text::mid(c, 7, 2)), time(text::mid(c, 9, 6));
    return time == text::mid(file_created, 9, 6) ? date : date + time + day;
}

const ProcedureReader* reader_for_record(const RecordLayout& record) {
    for (const Entry& e : entries())
        for (const RecordLayout* r : e.records)
            if (r == &record || r->id == record.id) return &e.reader;
    return nullptr;
}

}  // namespace tamrel::readback
