#include "com/com_error.h"

#include <oleauto.h>

#include <cstdio>
#include <new>

#include "com/com_text.h"
#include "core/error.h"

namespace tamrel::com {

void fail_with(HRESULT hr) {
    // The system's own text for the code, as VB shows it.
    wchar_t* text = nullptr;
    FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                   static_cast<DWORD>(hr), 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    std::string description = text ? utf8(text, wcslen(text)) : std::string();
    if (text) LocalFree(text);
    while (!description.empty() && (description.back() == '\n' || description.back() == '\r')) description.pop_back();
    raise(static_cast<std::int32_t>(hr), "TamrelFile26", std::move(description));
}

void set_error_info(const std::string& source, const std::string& description) {
    ICreateErrorInfo* create = nullptr;
    if (FAILED(CreateErrorInfo(&create))) return;
    const std::wstring s = utf16(source), d = utf16(description);
    create->SetSource(const_cast<wchar_t*>(s.c_str()));
    create->SetDescription(const_cast<wchar_t*>(d.c_str()));
    IErrorInfo* info = nullptr;
    if (SUCCEEDED(create->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&info)))) {
        SetErrorInfo(0, info);
        info->Release();
    }
    create->Release();
}

HRESULT current_error_as_hresult() noexcept {
    try {
        throw;
    } catch (const Error& e) {
        set_error_info(e.source(), e.description());
        // A number that is no failure code (a VB error number of a data
        // object) is raised as VB raises it: FACILITY_CONTROL.
        const HRESULT hr = static_cast<HRESULT>(e.number());
        return FAILED(hr) ? hr : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, e.number() & 0xFFFF);
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_UNEXPECTED;
    }
}

}  // namespace tamrel::com
