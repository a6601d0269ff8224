// The private interface of TamrelObj26's data objects: the record
// library's object behind one, for the generators to take without a call
// per property, and to write a structure back into after a call.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <unknwn.h>

#include <typeinfo>

namespace tamrel::com {

// The private interface of the data objects: the record library's object
// behind one, current with its sub-objects; nullptr for another type.
extern const IID IID_ITamrelData;
class ITamrelData : public IUnknown {
public:
    virtual const void* STDMETHODCALLTYPE data(const std::type_info& type) = 0;
    // Takes `value` (a `type`) as the object's data: a structure written
    // back after a call.
    virtual void STDMETHODCALLTYPE replace(const std::type_info& type, const void* value) = 0;
    // The object's dual interface (added a reference).
    virtual IDispatch* STDMETHODCALLTYPE dual() = 0;
};

// The record library's object behind `object` where it is one of these
// data objects of type `T`, else nullptr.
template <class T>
const T* own_data(IDispatch* object) {
    ITamrelData* own = nullptr;
    if (!object || FAILED(object->QueryInterface(IID_ITamrelData, reinterpret_cast<void**>(&own)))) return nullptr;
    const void* d = own->data(typeid(T));
    own->Release();
    return static_cast<const T*>(d);
}

// Writes `value` into `object`, one of these data objects of type `T`.
template <class T>
void replace_data(IDispatch* object, const T& value) {
    ITamrelData* own = nullptr;
    if (!object || FAILED(object->QueryInterface(IID_ITamrelData, reinterpret_cast<void**>(&own)))) return;
    own->replace(typeid(T), &value);
    own->Release();
}

}  // namespace tamrel::com
