// What every method of the server does around its generator call: the
// arguments converted, the call guarded (an error becomes the HRESULT and
// IErrorInfo), in/out arguments written back, the result handed over only
// on success.
#pragma once
#include <string>

#include "com/com_error.h"
#include "com/com_text.h"
#include "com/dispatch_reader.h"
#include "com/own_data.h"
#include "com/server_host.h"
#include "core/error.h"
#include "core/routine.h"

namespace tamrel::com {

// Runs `make` (which returns the record) and hands its text to *result.
template <class Make>
HRESULT returning(BSTR* result, Make&& make) noexcept {
    if (!result) return E_POINTER;
    *result = nullptr;
    return guarded([&] {
        const std::string text = make();
        *result = bstr(text);
    });
}

// The host's data object read into the library's, property by property. A
// failing read logs one line naming the object and raises the object's
// error unchanged.
template <class Obj>
Obj read_data_object(IDispatch* object, const char* name) {
    HostScope scope(server_host());
    return routine(name, [&](int&) {
        // VB's error 91: an object argument that is Nothing.
        if (!object) raise(MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, 91), name, "Objektvariable nicht festgelegt");
        Obj o{};
        read_object(object, o, name);
        return o;
    });
}

// Calls `use` with the host's data object as the library's: one of
// TamrelObj26's as it stands, without a copy; any other automation object
// read property by property.
template <class Obj, class Use>
auto with_data_object(IDispatch* object, const char* name, Use&& use) {
    if (const Obj* own = own_data<Obj>(object)) return use(*own);
    return use(read_data_object<Obj>(object, name));
}

// The frame methods of a generator with the common parameter lists (and
// GenVOSZ's optional in/out strDatum) as one call each.
template <class Gen>
std::string vosz(const Gen& g, BSTR a, BSTR e, BSTR f, BSTR firma, long enm, VARIANT* datum, const VARIANT& date) {
    std::string d = text_arg(datum);
    std::string r = g.GenVOSZ(utf8(a), utf8(e), utf8(f), utf8(firma), enm, d, date_arg(date));
    set_text_arg(datum, d);
    return r;
}
template <class Gen, class... Extra>
std::string dsko(const Gen& g, ::DSKOData* udt, const VARIANT& date, Extra... extra) {
    if (!udt) fail_with(E_POINTER);
    DSKOData d = from_com(*udt);
    std::string r = g.GenDSKO(d, extra..., date_arg(date));
    to_com(d, *udt);
    return r;
}
template <class Gen>
std::string ncsz(const Gen& g, BSTR a, BSTR e, BSTR f, BSTR count, const VARIANT& date) {
    return g.GenNCSZ(utf8(a), utf8(e), utf8(f), utf8(count), date_arg(date));
}
// GenData with the record identification (and any arguments between it and
// datDate).
template <class Obj, class Gen, class... Extra>
std::string data(Gen& g, IDispatch* object, const char* name, ::DatensatzData* udt, const VARIANT& date,
                 Extra... extra) {
    if (!udt) fail_with(E_POINTER);
    DatensatzData dd = from_com(*udt);
    std::string r =
        with_data_object<Obj>(object, name, [&](const Obj& o) { return g.GenData(o, dd, extra..., date_arg(date)); });
    to_com(dd, *udt);
    return r;
}

}  // namespace tamrel::com
