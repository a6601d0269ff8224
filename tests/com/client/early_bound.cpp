#include "early_bound.h"

#include <windows.h>  // first: the other system headers build on it

#include <oleauto.h>

#include <stdexcept>
#include <string>

#include "TamrelObj26.h"

namespace client {
namespace {

template <class T>
struct Ref {
    T* p = nullptr;
    Ref() = default;
    Ref(const Ref&) = delete;
    Ref& operator=(const Ref&) = delete;
    ~Ref() {
        if (p) p->Release();
    }
    T* operator->() const { return p; }
    void** out() { return reinterpret_cast<void**>(&p); }
};

struct Text {
    BSTR b = nullptr;
    Text() = default;
    explicit Text(const wchar_t* t) : b(SysAllocString(t)) {}
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    ~Text() { SysFreeString(b); }
    bool is(const wchar_t* t) const { return b && std::wstring(b, SysStringLen(b)) == t; }
};

void ok(HRESULT hr, const char* call) {
    if (FAILED(hr)) throw std::runtime_error(std::string(call) + " failed (" + std::to_string(hr) + ")");
}
void expect(bool holds, const char* what) {
    if (!holds) throw std::runtime_error(what);
}

}  // namespace

std::string check_early_bound() {
    Ref<_Meldung> m;
    ok(CoCreateInstance(__uuidof(Meldung), nullptr, CLSCTX_INPROC_SERVER, __uuidof(_Meldung), m.out()),
       "CoCreateInstance(Meldung)");
    ok(m->put_Laufnummer(7), "put_Laufnummer");
    Text reason(L"10"), line(L"DE"), name(L"M\u00fcller");
    ok(m->put_Meldegrund(reason.b), "put_Meldegrund");
    ok(m->put_KsZeileA(2, line.b), "put_KsZeileA");
    Ref<_Vorgang> v;
    ok(m->get_Vorgang(&v.p), "get_Vorgang");
    ok(v->put_Familienname(name.b), "put_Familienname");

    LONG number = 0;
    Text got, entry, json;
    ok(m->get_Laufnummer(&number), "get_Laufnummer");
    ok(m->get_KsZeileA(2, &entry.b), "get_KsZeileA");
    ok(m->ToJson(&json.b), "ToJson");
    expect(number == 7 && entry.is(L"DE"), "Meldung: a value set through the interface reads back otherwise");
    expect(json.is(L"{\"Laufnummer\":7,\"Meldegrund\":\"10\",\"KsZeileA\":{\"2\":\"DE\"},"
                   L"\"Vorgang\":{\"Familienname\":\"M\u00fcller\"}}"),
           "Meldung: ToJson after typed calls");

    // A repeating group's item, made by Add and counted.
    Ref<_ArbeitsBesch> b;
    ok(CoCreateInstance(__uuidof(ArbeitsBesch), nullptr, CLSCTX_INPROC_SERVER, __uuidof(_ArbeitsBesch), b.out()),
       "CoCreateInstance(ArbeitsBesch)");
    Ref<_DBSE> item, again;
    ok(b->AddDBSE(&item.p), "AddDBSE");
    Text grade(L"1");
    ok(item->put_STKL(grade.b), "put_STKL");
    ok(b->get_DBSE(1, &again.p), "get_DBSE");
    Text back;
    ok(again->get_STKL(&back.b), "get_STKL");
    expect(back.is(L"1"), "ArbeitsBesch: an item made by AddDBSE is the group's first");

    // A failure carries its description, as VB shows it.
    Text bad(L"{\"Unbekannt\":1}");
    expect(FAILED(m->LoadJson(bad.b)), "LoadJson took an unknown property");
    Ref<ISupportErrorInfo> supports;
    ok(m->QueryInterface(IID_ISupportErrorInfo, supports.out()), "QueryInterface(ISupportErrorInfo)");
    expect(supports->InterfaceSupportsErrorInfo(__uuidof(_Meldung)) == S_OK, "no error information promised");
    Ref<IErrorInfo> error;
    expect(GetErrorInfo(0, &error.p) == S_OK && error.p, "no IErrorInfo after a failure");
    Text description;
    error->GetDescription(&description.b);
    expect(description.is(L"LoadJson.Unbekannt: unknown property"), "the failure's description differs");
    return "typed calls through _Meldung, _Vorgang, _ArbeitsBesch and _DBSE, and a failure's IErrorInfo, as a "
           "compiled host sees them";
}

}  // namespace client
