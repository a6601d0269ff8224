// A class object that makes its objects with a function: the server's for
// each creatable class, and the test client's for its own test object.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <oleauto.h>

#include <atomic>
#include <functional>
#include <utility>

#include "com/com_error.h"

namespace tamrel::com {

class ClassFactory : public IClassFactory {
public:
    // `make` returns a new object with one reference; `locks` counts
    // LockServer (nullptr: not counted).
    ClassFactory(std::function<IUnknown*()> make, std::atomic<long>* locks) : make_(std::move(make)), locks_(locks) {}
    virtual ~ClassFactory() = default;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
        if (!out) return E_POINTER;
        if (iid == IID_IUnknown || iid == IID_IClassFactory) {
            *out = static_cast<IClassFactory*>(this);
            AddRef();
            return S_OK;
        }
        *out = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++refs_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG n = --refs_;
        if (n == 0) delete this;
        return n;
    }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** out) override {
        if (!out) return E_POINTER;
        *out = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        IUnknown* object = nullptr;
        // An object that cannot be made (its test object failing) says why.
        const HRESULT made = guarded([&] { object = make_(); });
        if (FAILED(made)) return made;
        const HRESULT hr = object->QueryInterface(iid, out);
        object->Release();
        return hr;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
        if (locks_) lock ? ++*locks_ : --*locks_;
        return S_OK;
    }

private:
    std::function<IUnknown*()> make_;
    std::atomic<long>* locks_;
    std::atomic<ULONG> refs_{1};
};

}  // namespace tamrel::com
