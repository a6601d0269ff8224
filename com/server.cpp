// The in-process server's four exports: class objects, unloading, and
// self-registration of the classes, their ProgIDs and the type library.
#include <windows.h>  // first: the other system headers build on it

#include <oleauto.h>
#include <olectl.h>

#include <atomic>
#include <string>

#include "com/class_factory.h"
#include "com/classes.h"
#include "com/com_error.h"
#include "com/com_object.h"
#include "com/com_text.h"
#include "com/data_objects.h"

namespace tamrel::com {

std::atomic<long> g_live{0};

namespace {

HMODULE g_module = nullptr;

std::wstring module_path() {
    wchar_t buffer[MAX_PATH + 1];
    const DWORD n = GetModuleFileNameW(g_module, buffer, MAX_PATH);
    return std::wstring(buffer, n);
}

// The type library resource `index` of the DLL ("path\\2" for the second).
std::wstring library_path(int index) {
    return index > 1 ? module_path() + L"\\" + std::to_wstring(index) : module_path();
}

std::wstring guid_text(const GUID& g) {
    wchar_t buffer[40];
    StringFromGUID2(g, buffer, 40);
    return buffer;
}

bool set_value(HKEY root, const std::wstring& key, const wchar_t* name, const std::wstring& value) {
    HKEY k = nullptr;
    if (RegCreateKeyExW(root, key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &k, nullptr) != ERROR_SUCCESS)
        return false;
    const LONG r = RegSetValueExW(k, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                                  static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
    RegCloseKey(k);
    return r == ERROR_SUCCESS;
}

std::wstring progid(const ClassEntry& c) { return L"TamrelFile26." + utf16(c.name); }
std::wstring progid(const DataClassEntry& c) { return L"TamrelObj26." + utf16(c.name); }

// Registers the type library and gives its identifier.
HRESULT register_library(int index, std::wstring& libid) {
    ITypeLib* lib = type_library(index);
    if (!lib) return TYPE_E_CANTLOADLIBRARY;
    std::wstring path = library_path(index);
    const HRESULT hr = RegisterTypeLib(lib, const_cast<wchar_t*>(path.c_str()), nullptr);
    if (FAILED(hr)) return hr;
    TLIBATTR* attr = nullptr;
    lib->GetLibAttr(&attr);
    libid = guid_text(attr->guid);
    lib->ReleaseTLibAttr(attr);
    return S_OK;
}

// Removes the type library's key and its interfaces' keys.
HRESULT unregister_library(int index) {
    ITypeLib* lib = type_library(index);
    if (!lib) return TYPE_E_CANTLOADLIBRARY;
    TLIBATTR* attr = nullptr;
    lib->GetLibAttr(&attr);
    const HRESULT hr = UnRegisterTypeLib(attr->guid, attr->wMajorVerNum, attr->wMinorVerNum, attr->lcid, attr->syskind);
    lib->ReleaseTLibAttr(attr);
    return hr == TYPE_E_REGISTRYACCESS ? S_OK : hr;
}

HRESULT class_object(IUnknown* (*create)(), REFIID iid, void** out) {
    auto* f = new (std::nothrow) ClassFactory(create, &g_live);
    if (!f) return E_OUTOFMEMORY;
    const HRESULT hr = f->QueryInterface(iid, out);
    f->Release();
    return hr;
}

// A class's keys: its CLSID with the server, and its ProgID.
bool register_class(const CLSID& clsid, const std::wstring& prog, const std::wstring& path, const std::wstring* libid) {
    const std::wstring key = L"CLSID\\" + guid_text(clsid);
    return set_value(HKEY_CLASSES_ROOT, key, nullptr, prog) &&
           set_value(HKEY_CLASSES_ROOT, key + L"\\InprocServer32", nullptr, path) &&
           set_value(HKEY_CLASSES_ROOT, key + L"\\InprocServer32", L"ThreadingModel", L"Apartment") &&
           set_value(HKEY_CLASSES_ROOT, key + L"\\ProgID", nullptr, prog) &&
           (!libid || set_value(HKEY_CLASSES_ROOT, key + L"\\TypeLib", nullptr, *libid)) &&
           set_value(HKEY_CLASSES_ROOT, key + L"\\VERSION", nullptr, L"1.0") &&
           set_value(HKEY_CLASSES_ROOT, prog, nullptr, prog) &&
           set_value(HKEY_CLASSES_ROOT, prog + L"\\CLSID", nullptr, guid_text(clsid));
}

void unregister_class(const CLSID& clsid, const std::wstring& prog) {
    RegDeleteTreeW(HKEY_CLASSES_ROOT, (L"CLSID\\" + guid_text(clsid)).c_str());
    RegDeleteTreeW(HKEY_CLASSES_ROOT, prog.c_str());
}

}  // namespace

ITypeLib* type_library(int index) {
    auto load = [](int i) {
        ITypeLib* l = nullptr;
        LoadTypeLibEx(library_path(i).c_str(), REGKIND_NONE, &l);
        return l;
    };
    static ITypeLib* const libs[2] = {load(1), load(2)};
    return index == 1 || index == 2 ? libs[index - 1] : nullptr;
}

ITypeInfo* type_info(REFIID iid) {
    // One ITypeInfo per interface, kept for the life of the process.
    static ITypeInfo* cache[32] = {};
    for (std::size_t i = 0; i < kClassCount; ++i) {
        if (kClasses[i].iid != iid) continue;
        if (!cache[i] && type_library(1)) type_library(1)->GetTypeInfoOfGuid(iid, &cache[i]);
        return cache[i];
    }
    return nullptr;
}

}  // namespace tamrel::com

using namespace tamrel::com;

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        g_module = instance;
        DisableThreadLibraryCalls(instance);
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** out) {
    if (!out) return E_POINTER;
    *out = nullptr;
    for (std::size_t i = 0; i < kClassCount; ++i)
        if (kClasses[i].clsid == clsid && kClasses[i].create) return class_object(kClasses[i].create, iid, out);
    for (const DataClassEntry& c : data_classes())
        if (c.clsid == clsid) return class_object(c.create, iid, out);
    return CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() { return g_live == 0 ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() {
    const std::wstring path = module_path();
    std::wstring libid, objects_libid;
    HRESULT hr = register_library(1, libid);
    if (SUCCEEDED(hr)) hr = register_library(2, objects_libid);
    if (FAILED(hr)) return hr;
    for (std::size_t i = 0; i < kClassCount; ++i) {
        const ClassEntry& c = kClasses[i];
        if (!c.create) continue;  // clsGenDef: described by the type library, not creatable
        if (!register_class(c.clsid, progid(c), path, &libid)) return SELFREG_E_CLASS;
    }
    for (const DataClassEntry& c : data_classes())
        if (!register_class(c.clsid, progid(c), path, &objects_libid)) return SELFREG_E_CLASS;
    return S_OK;
}

STDAPI DllUnregisterServer() {
    for (std::size_t i = 0; i < kClassCount; ++i) {
        const ClassEntry& c = kClasses[i];
        if (c.create) unregister_class(c.clsid, progid(c));
    }
    for (const DataClassEntry& c : data_classes()) unregister_class(c.clsid, progid(c));
    const HRESULT hr = unregister_library(1);
    const HRESULT objects = unregister_library(2);
    return FAILED(hr) ? hr : objects;
}
