#include "com/server_host.h"

#include <windows.h>  // first: the other system headers build on it

#include <oleauto.h>

#include <cstdio>
#include <memory>
#include <mutex>

#include "com/com_error.h"
#include "com/com_text.h"
#include "com/dispatch_reader.h"
#include "core/error.h"

namespace tamrel::com {
namespace {

std::wstring log_path() {
    wchar_t buffer[MAX_PATH + 1];
    DWORD n = GetEnvironmentVariableW(L"TAMREL_LOG", buffer, MAX_PATH);
    if (n > 0 && n < MAX_PATH) return std::wstring(buffer, n);
    n = GetTempPathW(MAX_PATH, buffer);
    return std::wstring(buffer, n < MAX_PATH ? n : 0) + L"TamrelFile26.log";
}

// One line, UTF-8, CR LF, appended; a failure to log is ignored (the
// error on its way must not be replaced).
void append_log_line(std::string_view line) {
    static std::mutex mutex;
    std::lock_guard lock(mutex);
    FILE* f = _wfopen(log_path().c_str(), L"ab");
    if (!f) return;
    std::fwrite(line.data(), 1, line.size(), f);
    std::fwrite("\r\n", 1, 2, f);
    std::fclose(f);
}

// TAMREL_NOW ("YYYY-MM-DDTHH:MM:SS") fixes the clock, for files that come
// out the same on every run. Read once, when the clock is first asked: the
// environment is the process's from its start.
Date clock_now() {
    static const std::string fixed = [] {
        wchar_t buffer[64];
        const DWORD n = GetEnvironmentVariableW(L"TAMREL_NOW", buffer, 64);
        return n == 0 || n >= 64 ? std::string() : utf8(buffer, n);
    }();
    if (fixed.empty()) return system_now();
    if (const std::optional<Date> d = parse_iso_date(fixed); d && !d->is_empty()) return *d;
    raise(E_INVALIDARG, "TamrelFile26", "TAMREL_NOW \"" + fixed + "\": expected YYYY-MM-DDTHH:MM:SS");
}

using TestObject = std::shared_ptr<IDispatch>;

// A new test object of the host program, or none when it registered none.
TestObject make_test_object() {
    CLSID clsid;
    if (FAILED(CLSIDFromProgID(kObjectTestsProgId, &clsid))) return nullptr;
    IDispatch* object = nullptr;
    throw_if_failed(CoCreateInstance(clsid, nullptr, CLSCTX_ALL, IID_IDispatch, reinterpret_cast<void**>(&object)));
    return TestObject(object, [](IDispatch* d) { d->Release(); });
}

bool ask(const TestObject& object, const char* test, std::string_view text) {
    if (!object) return false;
    const HostObject o(object.get(), "TamrelFile26.ObjectTests");
    Value answer(o.call(test, text));
    bool yes = false;
    convert(answer.v, yes, o, test);
    return yes;
}

// A test that asks a test object made for the question.
TextTest fresh(const char* test) {
    return [test](std::string_view text) { return ask(make_test_object(), test, text); };
}

}  // namespace

const Host& server_host() {
    static const Host host{
        append_log_line, clock_now, {fresh("NameTest"), fresh("EmpfBknTest1"), fresh("EmpfBknTest2")}};
    return host;
}

Host host_with_kept_tests() {
    Host host = server_host();
    const TestObject kept = make_test_object();
    host.tests.EmpfBknTest1 = [kept](std::string_view bnr) { return ask(kept, "EmpfBknTest1", bnr); };
    host.tests.EmpfBknTest2 = [kept](std::string_view bnr) { return ask(kept, "EmpfBknTest2", bnr); };
    return host;
}

}  // namespace tamrel::com
