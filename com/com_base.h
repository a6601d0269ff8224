// What every object of the server shares: its reference count, the count
// of objects alive in the process (DllCanUnloadNow), and QueryInterface for
// its two interfaces: `Main` (IDispatch, or an interface built on it) and
// `Second`, reached by `SecondIid`, and any further one the object names.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <oaidl.h>

#include <atomic>

namespace tamrel::com {

// Objects and locks alive in the process (DllCanUnloadNow).
extern std::atomic<long> g_live;

template <class Main, class Second, const IID& SecondIid>
class ComBase : public Main, public Second {
public:
    ComBase() { ++g_live; }
    virtual ~ComBase() { --g_live; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
        if (!out) return E_POINTER;
        if (iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(Main)) {
            *out = static_cast<Main*>(this);
        } else if (iid == SecondIid) {
            *out = static_cast<Second*>(this);
        } else if (void* more = interface_for(iid)) {
            *out = more;
        } else {
            *out = nullptr;
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++refs_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG n = --refs_;
        if (n == 0) delete this;
        return n;
    }

protected:
    // A further interface the object answers to (nullptr: none).
    virtual void* interface_for(REFIID) { return nullptr; }

private:
    std::atomic<ULONG> refs_{1};
};

}  // namespace tamrel::com
