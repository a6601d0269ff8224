// A host program of TamrelFile26.dll that calls through the vtable, as VB6
// and Delphi programs do, with its data objects as IDispatch objects made
// from a job's JSON (docs/job-format.md):
//   com_client generate JOB OUT PROTOCOL  the whole transfer file (ISO-8859-1,
//                                         LF) and one protocol line per report
//   com_client data JOB                   each report's GenData as one JSON
//                                         line: result, or error and log lines
//   com_client objects JOB OUT PROTOCOL   as generate, with each report in a
//                                         data object of TamrelObj26
//   com_client objects-early JOB OUT PROTOCOL
//                                         the same, the data objects filled
//                                         through their dual interfaces
//   com_client interfaces                 every property of every data object
//                                         set through its dual interface and
//                                         read back by name; typed calls as a
//                                         compiled host makes them
//   com_client bench JOB N                N calls of GenData with the first
//                                         report, as reports per second
//   com_client bench-objects JOB N        the same with a data object of
//                                         TamrelObj26, filled once
//   com_client bench-typed JOB N          the same with the client's object
//                                         as a class with type information
//   com_client lookups JOB                how often the server asks for a
//                                         name, with and without a class
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <stdexcept>

#include "TamrelFile26.h"
#include "com/com_text.h"
#include "early_bound.h"
#include "json_object.h"
#include "own_object.h"

using namespace client;
using tamrel::com::bstr;
using tamrel::com::utf16;
using tamrel::com::utf8;

namespace {

// A failed call: its HRESULT and the IErrorInfo the server set.
struct CallError : std::runtime_error {
    HRESULT number;
    std::string source, description;
    CallError(HRESULT hr, std::string s, std::string d)
        : std::runtime_error(s + ": " + d), number(hr), source(std::move(s)), description(std::move(d)) {}
};

void check(HRESULT hr) {
    if (SUCCEEDED(hr)) return;
    IErrorInfo* info = nullptr;
    BSTR source = nullptr, description = nullptr;
    if (GetErrorInfo(0, &info) == S_OK && info) {
        info->GetSource(&source);
        info->GetDescription(&description);
        info->Release();
    }
    CallError e(hr, utf8(source), utf8(description));
    SysFreeString(source);
    SysFreeString(description);
    throw e;
}

// Owns a BSTR.
struct Text {
    BSTR b = nullptr;
    Text() = default;
    explicit Text(std::string_view s) : b(bstr(s)) {}
    ~Text() { SysFreeString(b); }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    std::string str() const { return utf8(b); }
};

std::string text_of(const json& j, const char* key) {
    const auto it = j.find(key);
    return it == j.end() || it->is_null() ? std::string() : it->get<std::string>();
}

// An optional Date: left out, or the job's "YYYY-MM-DD[THH:MM:SS]".
VARIANT date_of(const json& job) {
    VARIANT v;
    VariantInit(&v);
    const std::string t = text_of(job, "datDate");
    if (t.empty()) {
        V_VT(&v) = VT_ERROR;
        V_ERROR(&v) = DISP_E_PARAMNOTFOUND;
        return v;
    }
    SYSTEMTIME st{};
    int y = 0, mo = 0, d = 0, h = 0, mi = 0, s = 0;
    std::sscanf(t.c_str(), "%d-%d-%dT%d:%d:%d", &y, &mo, &d, &h, &mi, &s);
    st.wYear = static_cast<WORD>(y), st.wMonth = static_cast<WORD>(mo), st.wDay = static_cast<WORD>(d);
    st.wHour = static_cast<WORD>(h), st.wMinute = static_cast<WORD>(mi), st.wSecond = static_cast<WORD>(s);
    V_VT(&v) = VT_DATE;
    SystemTimeToVariantTime(&st, &V_DATE(&v));
    return v;
}

long verfahren_of(const json& job) {
    const auto it = job.find("enmVerfahren");
    if (it == job.end()) return 0;
    if (it->is_number()) return it->get<long>();
    const std::string n = it->get<std::string>();
    return n == "vmSofort" ? 1 : n == "vmBV" ? 2 : 0;
}

// The two structures, member by member from the job's objects.
template <class S>
struct Members;
template <>
struct Members<::DSKOData> {
    static constexpr std::pair<const char*, BSTR ::DSKOData::*> list[] = {
        {"strBNRAb", &::DSKOData::strBNRAb},       {"strBNREm", &::DSKOData::strBNREm},
        {"strMicroSec", &::DSKOData::strMicroSec}, {"strProdID", &::DSKOData::strProdID},
        {"strModID", &::DSKOData::strModID},       {"strName1", &::DSKOData::strName1},
        {"strName2", &::DSKOData::strName2},       {"strName3", &::DSKOData::strName3},
        {"strStrasse", &::DSKOData::strStrasse},   {"strHausNr", &::DSKOData::strHausNr},
        {"strPLZ", &::DSKOData::strPLZ},           {"strOrt", &::DSKOData::strOrt},
        {"strAnGeschl", &::DSKOData::strAnGeschl}, {"strAnName", &::DSKOData::strAnName},
        {"strAnTel", &::DSKOData::strAnTel},       {"strAnFax", &::DSKOData::strAnFax},
        {"strAnEMail", &::DSKOData::strAnEMail}};
};
template <>
struct Members<::DatensatzData> {
    static constexpr std::pair<const char*, BSTR ::DatensatzData::*> list[] = {
        {"strBNRAb", &::DatensatzData::strBNRAb},        {"strBNRSt", &::DatensatzData::strBNRSt},
        {"strVersion", &::DatensatzData::strVersion},    {"strMicroseconds", &::DatensatzData::strMicroseconds},
        {"strProdID", &::DatensatzData::strProdID},      {"strModID", &::DatensatzData::strModID},
        {"strDateiname", &::DatensatzData::strDateiname}};
};
template <class S>
struct Structure {
    S s{};
    explicit Structure(const json& j) {
        for (const auto& [name, member] : Members<S>::list) s.*member = bstr(text_of(j, name));
    }
    ~Structure() {
        for (const auto& [name, member] : Members<S>::list) SysFreeString(s.*member);
    }
    Structure(const Structure&) = delete;
    Structure& operator=(const Structure&) = delete;
};

template <class Itf>
Itf* create(const std::string& cls) {
    CLSID clsid;
    check(CLSIDFromProgID(utf16("TamrelFile26." + cls).c_str(), &clsid));
    Itf* itf = nullptr;
    check(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Itf), reinterpret_cast<void**>(&itf)));
    return itf;
}

// The four methods of generator interface Itf with the job's arguments, in
// the parameter lists each class has.
template <class Itf>
class Generator {
public:
    Generator(const json& job, const std::string& cls) : job_(job), g_(create<Itf>(cls)) {}
    ~Generator() { g_->Release(); }

    std::string vosz() {
        Text a(text_of(job_, "strBNRAb")), e(text_of(job_, "strBNREm")), f(text_of(job_, "strFileNr")),
            firma(text_of(job_, "strFirma")), r;
        VARIANT datum;
        VariantInit(&datum);
        V_VT(&datum) = VT_BSTR;
        V_BSTR(&datum) = bstr(text_of(job_, "strDatum"));
        VARIANT date = date_of(job_);
        HRESULT hr;
        if constexpr (std::is_same_v<Itf, _clsGenBeitrErh>)
            hr = g_->GenVOSZ(a.b, e.b, f.b, firma.b, &datum, date, &r.b);
        else if constexpr (std::is_same_v<Itf, _clsGenBeitrNachw>)
            hr = g_->GenVOSZ(a.b, e.b, f.b, verfahren_of(job_), firma.b, &datum, date, &r.b);
        else
            hr = g_->GenVOSZ(a.b, e.b, f.b, firma.b, static_cast<VerfMerkmal>(verfahren_of(job_)), &datum, date, &r.b);
        VariantClear(&datum);
        check(hr);
        return r.str();
    }
    std::string dsko() {
        Structure<::DSKOData> d(job_.value("udtDSKOData", json::object()));
        Text r;
        if constexpr (std::is_same_v<Itf, _clsGenBeitrNachw>)
            check(g_->GenDSKO(&d.s, verfahren_of(job_), date_of(job_), &r.b));
        else
            check(g_->GenDSKO(&d.s, date_of(job_), &r.b));
        return r.str();
    }
    std::string data(IDispatch* obj) {
        const json& dd = job_.value("udtDatensatzData", json::object());
        Text r;
        if constexpr (std::is_same_v<Itf, _clsGenBeitrNachw>) {
            Text ab(text_of(dd, "strBNRAb")), st(text_of(dd, "strBNRSt")), version(text_of(dd, "strVersion")),
                micro(text_of(dd, "strMicroseconds"));
            check(g_->GenData(obj, ab.b, st.b, version.b, micro.b, date_of(job_), &r.b));
        } else {
            Structure<::DatensatzData> d(dd);
            if constexpr (std::is_same_v<Itf, _clsGenMeldung>)
                check(g_->GenData(obj, &d.s, static_cast<VerfMerkmal>(verfahren_of(job_)), date_of(job_), &r.b));
            else
                check(g_->GenData(obj, &d.s, date_of(job_), &r.b));
        }
        return r.str();
    }
    // `n` calls of GenData with the same object, the arguments made once
    // (as a host's loop over its reports keeps them): the server's cost.
    void repeat(IDispatch* obj, long n) {
        const json& dd = job_.value("udtDatensatzData", json::object());
        const VARIANT date = date_of(job_);
        Structure<::DatensatzData> d(dd);
        Text ab(text_of(dd, "strBNRAb")), st(text_of(dd, "strBNRSt")), version(text_of(dd, "strVersion")),
            micro(text_of(dd, "strMicroseconds"));
        const auto enm = static_cast<VerfMerkmal>(verfahren_of(job_));
        for (long i = 0; i < n; ++i) {
            BSTR r = nullptr;
            if constexpr (std::is_same_v<Itf, _clsGenBeitrNachw>)
                check(g_->GenData(obj, ab.b, st.b, version.b, micro.b, date, &r));
            else if constexpr (std::is_same_v<Itf, _clsGenMeldung>)
                check(g_->GenData(obj, &d.s, enm, date, &r));
            else
                check(g_->GenData(obj, &d.s, date, &r));
            SysFreeString(r);
        }
    }
    std::string ncsz(std::size_t count) {
        Text a(text_of(job_, "strBNRAb")), e(text_of(job_, "strBNREm")), f(text_of(job_, "strFileNr")),
            n(std::to_string(count)), r;
        if constexpr (std::is_same_v<Itf, _clsGenMeldung>)
            check(g_->GenNCSZ(a.b, e.b, f.b, n.b, static_cast<VerfMerkmal>(verfahren_of(job_)), date_of(job_), &r.b));
        else if constexpr (std::is_same_v<Itf, _clsGenBeitrNachw>)
            check(g_->GenNCSZ(a.b, e.b, f.b, n.b, verfahren_of(job_), date_of(job_), &r.b));
        else
            check(g_->GenNCSZ(a.b, e.b, f.b, n.b, date_of(job_), &r.b));
        return r.str();
    }

private:
    const json& job_;
    Itf* g_;
};

using ProtoMethod = HRESULT (STDMETHODCALLTYPE _clsProtoEntry::*)(IDispatch*, VARIANT_BOOL, BSTR, BSTR*);

// The protocol line of each generator class's reports.
const std::map<std::string, ProtoMethod> kProto = {
    {"clsGenBeitrNachw", &_clsProtoEntry::CreateProtoBeitr},
    {"clsGenMeldung", &_clsProtoEntry::CreateProtoMeld},
    {"clsGenBeitrErh", &_clsProtoEntry::CreateProtoBeitrErh},
    {"clsGenErst", &_clsProtoEntry::CreateProtoErst},
    {"clsGenZahl", &_clsProtoEntry::CreateProtoZahl},
    {"clsGenBetrieb", &_clsProtoEntry::CreateProtoBetrieb},
    {"clsGenEntgelt", &_clsProtoEntry::CreateProtoEntgelt},
    {"clsGenArbeitsBesch", &_clsProtoEntry::CreateProtoArbeitsBesch},
    {"clsGenAbfrVers", &_clsProtoEntry::CreateProtoAbfrVers},
    {"clsGenAbfrStammdatenUV", &_clsProtoEntry::CreateProtoAbfrStammdatenUV},
    {"clsGenLohnnachweis", &_clsProtoEntry::CreateProtoLohnnachweis},
};

// UTF-8 to ISO-8859-1, the transfer file's default encoding.
std::string latin1(const std::string& text) {
    std::string out;
    for (wchar_t c : utf16(text)) {
        if (c > 0xFF) throw std::runtime_error("a character ISO-8859-1 cannot hold");
        out += static_cast<char>(c);
    }
    return out;
}

void write_lines(const std::string& path, const std::vector<std::string>& lines) {
    std::ofstream out(path, std::ios::binary);
    for (const std::string& l : lines) out << latin1(l) << '\n';
    if (!out) throw std::runtime_error(path + ": cannot be written");
}

// A report as the host's own object, or as a data object of TamrelObj26
// of the class's kind ("clsGenMeldung": Meldung).
struct Object {
    IDispatch* d;
    explicit Object(const json& report) : d(new JsonObject(report)) {}
    explicit Object(IDispatch* made) : d(made) {}
    Object(const json& report, const std::string& cls, Binding how = Binding::Late)
        : d(own_object(cls.substr(6), report, how)) {}
    ~Object() { d->Release(); }
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
};

template <class Itf>
void generate(const json& job, const std::string& cls, const std::string& out, const std::string& proto, bool own,
              Binding how) {
    Generator<Itf> g(job, cls);
    const bool xml = cls == "clsGenAsyl";
    std::vector<std::string> file, protocol;
    if (xml) {
        file.push_back("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>");
        file.push_back("<kotkv xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">");
    }
    file.push_back(g.vosz());
    if constexpr (!std::is_same_v<Itf, _clsGenAsyl>) file.push_back(g.dsko());
    const auto method = kProto.find(cls);
    _clsProtoEntry* p = method == kProto.end() ? nullptr : create<_clsProtoEntry>("clsProtoEntry");
    for (const json& report : job.at("reports")) {
        const Object obj = own ? Object(report, cls, how) : Object(report);
        file.push_back(g.data(obj.d));
        if (!p) continue;
        Text none(""), line;
        check((p->*(method->second))(obj.d, VARIANT_FALSE, none.b, &line.b));
        protocol.push_back(line.str());
    }
    if (p) p->Release();
    file.push_back(g.ncsz(job.at("reports").size() + (xml ? 0 : 1)));
    if (xml) file.push_back("</kotkv>");
    write_lines(out, file);
    write_lines(proto, protocol);
}

// The log lines the server wrote since the log file was emptied.
std::vector<std::string> take_log(const std::wstring& path) {
    std::vector<std::string> lines;
    std::ifstream in(std::filesystem::path(path), std::ios::binary);
    for (std::string l; std::getline(in, l);) {
        if (!l.empty() && l.back() == '\r') l.pop_back();
        lines.push_back(l);
    }
    in.close();
    DeleteFileW(path.c_str());
    return lines;
}

template <class Itf>
void data(const json& job, const std::string& cls) {
    Generator<Itf> g(job, cls);
    wchar_t temp[MAX_PATH];
    GetTempPathW(MAX_PATH, temp);
    const std::wstring log = std::wstring(temp) + L"com_client.log";
    SetEnvironmentVariableW(L"TAMREL_LOG", log.c_str());
    take_log(log);
    for (const json& report : job.at("reports")) {
        const Object obj(report);
        json line;
        try {
            line["result"] = g.data(obj.d);
        } catch (const CallError& e) {
            line["error"] = {
                {"number", static_cast<std::int32_t>(e.number)}, {"source", e.source}, {"description", e.description}};
        }
        line["log"] = take_log(log);
        std::printf("%s\n", line.dump().c_str());
    }
}

// N calls with the first report: the client's object (as a class of its
// own with type information when `typed`), or a TamrelObj26 one.
template <class Itf>
void bench(const json& job, const std::string& cls, const std::string& count, bool own, bool typed) {
    Generator<Itf> g(job, cls);
    const json& report = job.at("reports").at(0);
    const Object obj = own ? Object(report, cls) : typed ? Object(new JsonObject(report, "Report")) : Object(report);
    const long n = std::stol(count);
    LARGE_INTEGER f, t0, t1;
    QueryPerformanceFrequency(&f);
    QueryPerformanceCounter(&t0);
    g.repeat(obj.d, n);
    QueryPerformanceCounter(&t1);
    const double seconds = double(t1.QuadPart - t0.QuadPart) / double(f.QuadPart);
    std::printf("%s: %ld reports in %.3f s: %.0f reports/s\n", cls.c_str(), n, seconds, n / seconds);
}

// How often the server asks the host's objects for a name: objects of no
// class ask each time, objects of a class (with type information) once;
// and whether every record is the same either way (the ids kept are right).
template <class Itf>
void lookups(const json& job, const std::string& cls) {
    Generator<Itf> g(job, cls);
    const json& report = job.at("reports").at(0);
    std::string first_record;
    int made = 0, differ = 0;
    auto count = [&](int n, bool typed) {
        const long before = AutomationObject::lookups;
        for (int i = 0; i < n; ++i) {
            const Object obj = typed ? Object(new JsonObject(report, "Report")) : Object(report);
            const std::string record = g.data(obj.d);
            if (first_record.empty()) first_record = record;
            differ += record != first_record;
            ++made;
        }
        return AutomationObject::lookups - before;
    };
    const long untyped = count(10, false), first = count(1, true), then = count(10, true);
    std::printf(
        "name lookups: %ld for 10 reports of objects of no class, %ld for the first of a class, %ld for 10 more\n",
        untyped, first, then);
    std::printf("records that differ from the first: %d of %d\n", differ, made);
}

// Runs a mode for a generator class, through its default interface.
template <class Itf>
void run(const std::string& mode, const json& job, const std::string& cls, const std::vector<std::string>& args) {
    const std::string a = args.size() > 2 ? args[2] : "", b = args.size() > 3 ? args[3] : "";
    if (mode == "generate" || mode == "objects" || mode == "objects-early")
        generate<Itf>(job, cls, a, b, mode != "generate", mode == "objects-early" ? Binding::Early : Binding::Late);
    else if (mode == "data")
        data<Itf>(job, cls);
    else if (mode == "lookups")
        lookups<Itf>(job, cls);
    else
        bench<Itf>(job, cls, a, mode == "bench-objects", mode == "bench-typed");
}
using Runner = void (*)(const std::string&, const json&, const std::string&, const std::vector<std::string>&);
const std::map<std::string, Runner> kRunners = {
    {"clsGenBeitrNachw", &run<_clsGenBeitrNachw>},
    {"clsGenBeitrErh", &run<_clsGenBeitrErh>},
    {"clsGenMeldung", &run<_clsGenMeldung>},
    {"clsGenErst", &run<_clsGenErst>},
    {"clsGenZahl", &run<_clsGenZahl>},
    {"clsGenBetrieb", &run<_clsGenBetrieb>},
    {"clsGenArbeitsBesch", &run<_clsGenArbeitsBesch>},
    {"clsGenEntgelt", &run<_clsGenEntgelt>},
    {"clsGenAbfrVers", &run<_clsGenAbfrVers>},
    {"clsGenAsyl", &run<_clsGenAsyl>},
    {"clsGenAbfrStammdatenUV", &run<_clsGenAbfrStammdatenUV>},
    {"clsGenLohnnachweis", &run<_clsGenLohnnachweis>},
};

json read_json(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error(path + ": cannot be read");
    return json::parse(in);
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    const bool interfaces = args.size() == 1 && args[0] == "interfaces";
    if (args.size() < 2 && !interfaces) {
        std::fprintf(stderr,
                     "usage: com_client generate|objects|objects-early JOB OUT PROTOCOL | data|lookups JOB | "
                     "bench|bench-objects|bench-typed JOB N | interfaces\n");
        return 2;
    }
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int status = 0;
    try {
        if (interfaces) {
            std::printf("%s\n%s\n", check_interfaces().c_str(), check_early_bound().c_str());
            CoUninitialize();
            return 0;
        }
        const json job = read_json(args[1]);
        if (job.contains("now")) SetEnvironmentVariableW(L"TAMREL_NOW", utf16(job["now"].get<std::string>()).c_str());
        static const json none;
        const TestAnswersRegistration tests(job.contains("tests") ? job["tests"] : none);
        const std::string cls = job.at("class").get<std::string>();
        kRunners.at(cls)(args[0], job, cls, args);
    } catch (const CallError& e) {
        std::fprintf(stderr, "com_client: error %ld, %s: %s\n", static_cast<long>(e.number), e.source.c_str(),
                     e.description.c_str());
        status = 1;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "com_client: %s\n", e.what());
        status = 1;
    }
    CoUninitialize();
    return status;
}
