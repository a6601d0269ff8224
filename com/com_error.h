// Failures on their way to the host: every error becomes the method's
// HRESULT (the error's own number) with an IErrorInfo carrying its source
// and description, which Invoke hands to late-bound callers as EXCEPINFO.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <oleauto.h>

#include <string>

namespace tamrel::com {

// A failing system call: raised as the error of that HRESULT.
[[noreturn]] void fail_with(HRESULT hr);
inline void throw_if_failed(HRESULT hr) {
    if (FAILED(hr)) fail_with(hr);
}

// Sets the thread's IErrorInfo, as a failing method leaves it.
void set_error_info(const std::string& source, const std::string& description);

// The error in flight as the method's result, its IErrorInfo set. Called in
// a catch block.
HRESULT current_error_as_hresult() noexcept;

// Runs a method body; whatever it raises becomes the method's HRESULT.
template <class Body>
HRESULT guarded(Body&& body) noexcept {
    try {
        SetErrorInfo(0, nullptr);
        body();
        return S_OK;
    } catch (...) {
        return current_error_as_hresult();
    }
}

}  // namespace tamrel::com
