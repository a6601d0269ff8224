#include "com/data_objects.h"

#include <cctype>

#include "certificates/clsGenArbeitsBesch/ArbeitsBesch_properties.h"
#include "certificates/clsGenEntgelt/Entgelt_properties.h"
#include "com/data_object.h"
#include "core/objects_properties.h"
#include "queries/clsGenAbfrStammdatenUV/AbfrStammdatenUV_properties.h"
#include "queries/clsGenAbfrVers/AbfrVers_properties.h"
#include "queries/clsGenBetrieb/Betrieb_properties.h"
#include "queries/clsGenLohnnachweis/Lohnnachweis_properties.h"
#include "reports/clsGenBeitrErh/BeitrErh_properties.h"
#include "reports/clsGenBeitrNachw/BeitrNachw_properties.h"
#include "reports/clsGenErst/Erst_properties.h"
#include "reports/clsGenMeldung/Meldung_properties.h"
#include "reports/clsGenZahl/Zahl_properties.h"
#include "xml/clsGenAsyl/Asyl_properties.h"

namespace tamrel::com {

// {A4091A5A-2927-4775-AAF5-6119551522E8}
const IID IID_ITamrelData = {0xa4091a5a, 0x2927, 0x4775, {0xaa, 0xf5, 0x61, 0x19, 0x55, 0x15, 0x22, 0xe8}};

namespace objects {

bool same_name(std::wstring_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const wchar_t x = a[i];
        const auto y = static_cast<unsigned char>(b[i]);
        if (x > 0x7f || std::tolower(static_cast<int>(x)) != std::tolower(y)) return false;
    }
    return true;
}

namespace {

// Calls `read` with the Variant changed to `type`; false where it cannot be.
template <class Read>
bool changed(const VARIANT& v, VARTYPE type, Read&& read) {
    VARIANT t;
    VariantInit(&t);
    if (FAILED(VariantChangeType(&t, const_cast<VARIANT*>(&v), 0, type))) return false;
    const Value held(t);
    read(held.v);
    return true;
}

}  // namespace

bool take(const VARIANT& v, std::string& out) {
    return changed(v, VT_BSTR, [&](const VARIANT& t) { out = utf8(V_BSTR(&t)); });
}

bool take(const VARIANT& v, bool& out) {
    return changed(v, VT_BOOL, [&](const VARIANT& t) { out = V_BOOL(&t) != VARIANT_FALSE; });
}

bool take(const VARIANT& v, std::int64_t& out) {
    return changed(v, VT_I4, [&](const VARIANT& t) { out = V_I4(&t); });
}

void give(const std::string& v, VARIANT& out) {
    V_VT(&out) = VT_BSTR;
    V_BSTR(&out) = bstr(v);
}

void give(bool v, VARIANT& out) {
    V_VT(&out) = VT_BOOL;
    V_BOOL(&out) = v ? VARIANT_TRUE : VARIANT_FALSE;
}

void give(std::int64_t v, VARIANT& out) {
    V_VT(&out) = VT_I4;
    V_I4(&out) = static_cast<LONG>(v);
}

HRESULT raise(EXCEPINFO* excep, std::string_view source, std::string_view description) {
    if (!excep) return E_INVALIDARG;
    *excep = EXCEPINFO{};
    excep->bstrSource = bstr(source);
    excep->bstrDescription = bstr(description);
    excep->scode = E_INVALIDARG;
    return DISP_E_EXCEPTION;
}

}  // namespace objects

namespace {

template <class T>
IUnknown* make() {
    return static_cast<IDispatch*>(new DataObject<T>());
}

}  // namespace

// The class identifiers, each above its entry as registered.
const DataClassEntry kDataClasses[] = {
    // {A1716087-283D-4BD2-B3E8-1AFA745EB66C}
    {"Meldung", {0xa1716087, 0x283d, 0x4bd2, {0xb3, 0xe8, 0x1a, 0xfa, 0x74, 0x5e, 0xb6, 0x6c}}, &make<Meldung>},
    // {D17C2879-CCD9-477A-8D15-352681967CB8}
    {"BeitrNachw", {0xd17c2879, 0xccd9, 0x477a, {0x8d, 0x15, 0x35, 0x26, 0x81, 0x96, 0x7c, 0xb8}}, &make<BeitrNachw>},
    // {1F564837-2CEA-4AEF-8B03-2C7E66CE6C87}
    {"BeitrErh", {0x1f564837, 0x2cea, 0x4aef, {0x8b, 0x03, 0x2c, 0x7e, 0x66, 0xce, 0x6c, 0x87}}, &make<BeitrErh>},
    // {292217DB-6918-4F93-B5C3-5A1DF7B46986}
    {"Erst", {0x292217db, 0x6918, 0x4f93, {0xb5, 0xc3, 0x5a, 0x1d, 0xf7, 0xb4, 0x69, 0x86}}, &make<Erst>},
    // {BBBA7B32-AE73-44F2-8F0F-0A551ACFC746}
    {"Zahl", {0xbbba7b32, 0xae73, 0x44f2, {0x8f, 0x0f, 0x0a, 0x55, 0x1a, 0xcf, 0xc7, 0x46}}, &make<Zahl>},
    // {5662D5EE-5E17-4EB5-99D8-3A68048499A8}
    {"Betrieb", {0x5662d5ee, 0x5e17, 0x4eb5, {0x99, 0xd8, 0x3a, 0x68, 0x04, 0x84, 0x99, 0xa8}}, &make<Betrieb>},
    // {4003543F-500F-4054-97F7-B95ADC467069}
    {"ArbeitsBesch",
     {0x4003543f, 0x500f, 0x4054, {0x97, 0xf7, 0xb9, 0x5a, 0xdc, 0x46, 0x70, 0x69}},
     &make<ArbeitsBesch>},
    // {03D87012-38DB-41BD-B83B-B5196E4E78EA}
    {"Entgelt", {0x03d87012, 0x38db, 0x41bd, {0xb8, 0x3b, 0xb5, 0x19, 0x6e, 0x4e, 0x78, 0xea}}, &make<Entgelt>},
    // {2CDC5C2B-8585-4335-95C8-E5D35C0715D3}
    {"AbfrVers", {0x2cdc5c2b, 0x8585, 0x4335, {0x95, 0xc8, 0xe5, 0xd3, 0x5c, 0x07, 0x15, 0xd3}}, &make<AbfrVers>},
    // {D5AB7AD8-5B11-4482-AC5C-4E153F1510E3}
    {"AbfrStammdatenUV",
     {0xd5ab7ad8, 0x5b11, 0x4482, {0xac, 0x5c, 0x4e, 0x15, 0x3f, 0x15, 0x10, 0xe3}},
     &make<AbfrStammdatenUV>},
    // {0A9B1033-6CA5-4DC7-9472-08630322BE74}
    {"Lohnnachweis",
     {0x0a9b1033, 0x6ca5, 0x4dc7, {0x94, 0x72, 0x08, 0x63, 0x03, 0x22, 0xbe, 0x74}},
     &make<Lohnnachweis>},
    // {4BDABC4B-10A5-4B33-BE4E-943786FABDF2}
    {"Asyl", {0x4bdabc4b, 0x10a5, 0x4b33, {0xbe, 0x4e, 0x94, 0x37, 0x86, 0xfa, 0xbd, 0xf2}}, &make<Asyl>},
    // {BF22618A-D809-49B2-B0F5-422DCEBB0E84}
    {"Vorgang", {0xbf22618a, 0xd809, 0x49b2, {0xb0, 0xf5, 0x42, 0x2d, 0xce, 0xbb, 0x0e, 0x84}}, &make<Vorgang>},
    // {E5808C89-3153-42FC-B5C8-4BABEF8DEEFB}
    {"Arbeitgeber", {0xe5808c89, 0x3153, 0x42fc, {0xb5, 0xc8, 0x4b, 0xab, 0xef, 0x8d, 0xee, 0xfb}}, &make<Arbeitgeber>},
    // {492EB28F-2B0B-45C0-91ED-DB27F1698AC1}
    {"DSKOData", {0x492eb28f, 0x2b0b, 0x45c0, {0x91, 0xed, 0xdb, 0x27, 0xf1, 0x69, 0x8a, 0xc1}}, &make<DSKOData>},
    // {9C4DE04A-D4AF-49C8-8C11-4004E01B10F0}
    {"DatensatzData",
     {0x9c4de04a, 0xd4af, 0x49c8, {0x8c, 0x11, 0x40, 0x04, 0xe0, 0x1b, 0x10, 0xf0}},
     &make<DatensatzData>},
    // {974E0947-2718-4F87-A17E-671870ED9BD7}
    {"Empfaenger", {0x974e0947, 0x2718, 0x4f87, {0xa1, 0x7e, 0x67, 0x18, 0x70, 0xed, 0x9b, 0xd7}}, &make<Empfaenger>},
};
const std::size_t kDataClassCount = sizeof(kDataClasses) / sizeof(kDataClasses[0]);

}  // namespace tamrel::com
