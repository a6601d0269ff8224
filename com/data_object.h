// The creatable data objects of TamrelObj26: one automation object over a
// data object of the record library, its properties found in the same
// property table that the JSON and late-bound readers walk. Texts, numbers
// and flags are read and written as Variants; an indexed property takes its
// index; a sub-object exists from creation and is replaced with `Set`; a
// repeating group gives its items by index, its count under the reader's
// count name, and `Add<group>` / `Clear<group>`. The generators take the
// C++ object behind it through a private interface, without a call per
// property.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <oleauto.h>

#include <algorithm>
#include <atomic>
#include <bitset>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include "com/com_base.h"
#include "com/com_text.h"
#include "com/data_object_values.h"
#include "com/data_objects.h"
#include "com/dispatch_reader.h"
#include "com/dual_view.h"
#include "com/object_members.h"
#include "com/own_data.h"
#include "core/indexed.h"
#include "core/property_table.h"
#include "json/json_binding.h"
#include "readback/object_paths.h"

namespace tamrel::com {

template <properties::Bound T>
class DataObject final : public ComBase<IDispatch, ITamrelData, IID_ITamrelData> {
    using Fields = decltype(properties::Binding<T>::fields);
    static constexpr std::size_t kFields = std::tuple_size_v<Fields>;

public:
    DataObject() : stamp_(objects::next_stamp()) {
        each([&](std::size_t k, const auto& f) {
            using M = std::remove_reference_t<decltype(data_.*(f.member))>;
            if constexpr (properties::Bound<M>) children_[k] = new DataObject<M>();
        });
    }
    ~DataObject() {
        for (IDispatch* c : children_)
            if (c) c->Release();
        for (auto& list : items_)
            for (IDispatch* c : list) c->Release();
    }

    // IDispatch, described by the dual interface of the type library.
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* n) override {
        if (!n) return E_POINTER;
        *n = klass().info ? 1 : 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT i, LCID, ITypeInfo** out) override {
        if (!out) return E_POINTER;
        *out = i == 0 ? klass().info : nullptr;
        if (!*out) return DISP_E_BADINDEX;
        (*out)->AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        if (!names || !ids) return E_POINTER;
        for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
        if (count == 0) return S_OK;
        return no_throw([&] {
            ids[0] = id_of(names[0]);
            return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                                     EXCEPINFO* excep, UINT* arg_err) override {
        return no_throw([&] { return invoke(id, flags, params, result, excep, arg_err); });
    }

    // ITamrelData
    const void* STDMETHODCALLTYPE data(const std::type_info& type) override {
        if (type != typeid(T)) return nullptr;
        return &current();
    }
    void STDMETHODCALLTYPE replace(const std::type_info& type, const void* value) override {
        if (type != typeid(T)) return;
        data_ = *static_cast<const T*>(value);  // sub-objects and items stay what their objects hold
        stamp_ = objects::next_stamp();
    }
    IDispatch* STDMETHODCALLTYPE dual() override {
        AddRef();
        return reinterpret_cast<IDispatch*>(&view_);
    }

protected:
    void* interface_for(REFIID iid) override {
        if (iid == IID_ISupportErrorInfo) return &errors_;
        return klass().info && iid == klass().iid ? &view_ : nullptr;
    }

private:
    static const DataClassEntry& klass() {
        static const DataClassEntry& c = data_class(typeid(T));
        return c;
    }

    // Nothing thrown crosses to the host: a text or object that cannot be
    // made is E_OUTOFMEMORY.
    template <class F>
    static HRESULT no_throw(F&& f) noexcept {
        try {
            return f();
        } catch (...) {
            return E_OUTOFMEMORY;
        }
    }

    HRESULT invoke(DISPID id, WORD flags, DISPPARAMS* params, VARIANT* result, EXCEPINFO* excep, UINT* arg_err) {
        if (!params) return E_POINTER;
        if (arg_err) *arg_err = 0;
        if (id == members::kToJson || id == members::kLoadJson) return json_method(id, *params, result, excep);
        const bool put = flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
        // A put's value comes first; the index arguments follow, last one first.
        const UINT given = params->cArgs;
        const VARIANT* value = put && given > 0 ? &deref(params->rgvarg[0]) : nullptr;
        const UINT indices = put ? (given > 0 ? given - 1 : 0) : given;
        if (put && !value) return DISP_E_PARAMNOTOPTIONAL;
        if (indices > 1) return DISP_E_BADPARAMCOUNT;
        std::int64_t index = 0;
        if (indices == 1 && !objects::take(deref(params->rgvarg[given - 1]), index)) return DISP_E_TYPEMISMATCH;
        VARIANT ignored;
        VariantInit(&ignored);
        VARIANT& out = result ? *result : ignored;
        VariantInit(&out);
        HRESULT hr = DISP_E_MEMBERNOTFOUND;
        if (id >= members::kPrefixBase) {
            const auto k = static_cast<std::size_t>((id - members::kPrefixBase) / 256);
            const auto j = static_cast<std::size_t>((id - members::kPrefixBase) % 256);
            each_field([&](std::size_t i, const auto& e) {
                if constexpr (requires { e.prefix; }) {
                    if (i != k) return;
                    auto& nested = (put ? data_ : built()).*(e.member);
                    std::size_t n = 0;
                    std::apply(
                        [&](const auto&... g) {
                            ((n++ == j ? (hr = member(k, nested.*(g.member), put, value, indices, index, out)) : hr),
                             ...);
                        },
                        properties::Binding<std::remove_reference_t<decltype(nested)>>::fields);
                }
            });
        } else if (id >= members::kExtraBase) {
            const auto k = static_cast<std::size_t>((id - members::kExtraBase) / 3);
            const auto e = static_cast<members::Extra>((id - members::kExtraBase) % 3);
            hr = group_extra(k, e, put, out);
        } else if (id >= 1 && static_cast<std::size_t>(id) <= kFields) {
            T& from = put ? data_ : built();  // a derived bound or count reads as it is derived
            each([&](std::size_t k, const auto& f) {
                if (k + 1 == static_cast<std::size_t>(id))
                    hr = member(k, from.*(f.member), put, value, indices, index, out);
            });
            if (put && SUCCEEDED(hr)) put_[static_cast<std::size_t>(id - 1)] = true;
        }
        VariantClear(&ignored);
        if (SUCCEEDED(hr) && (put || id >= members::kExtraBase)) stamp_ = objects::next_stamp();
        return hr;
    }

public:
    // The object with what its sub-objects and items hold now, and what a
    // report's JSON leaves to be derived (bounds, counts) derived the same
    // way where the host did not set it.
    const T& current() { return built(); }
    // The newest change to the object, its sub-objects and its items.
    std::uint64_t newest() {
        std::uint64_t n = stamp_;
        each([&](std::size_t k, const auto& f) {
            using M = std::remove_reference_t<decltype(data_.*(f.member))>;
            if constexpr (properties::Bound<M>) {
                n = std::max(n, static_cast<DataObject<M>*>(children_[k])->newest());
            } else if constexpr (members::is_vector<M>) {
                for (IDispatch* item : items_[k])
                    n = std::max(n, static_cast<DataObject<typename M::value_type>*>(item)->newest());
            }
        });
        return n;
    }
    // Whether the host set the property `name` (for the derivation above).
    bool has(std::string_view name) const {
        bool set = false;
        each_field([&](std::size_t k, const auto& e) {
            if constexpr (requires { e.name; })
                if (e.name == name) set = put_[k];
        });
        return set;
    }

private:
    T& built() {
        const std::uint64_t now = newest();
        if (now == synced_) return built_;  // a filled object passed again and again is copied once
        synced_ = now;
        built_ = data_;
        each([&](std::size_t k, const auto& f) {
            auto& m = built_.*(f.member);
            using M = std::remove_reference_t<decltype(m)>;
            if constexpr (properties::Bound<M>) {
                m = static_cast<DataObject<M>*>(children_[k])->current();
            } else if constexpr (members::is_vector<M>) {
                using Item = typename M::value_type;
                m.resize(items_[k].size());
                for (std::size_t i = 0; i < m.size(); ++i)
                    m[i] = static_cast<DataObject<Item>*>(items_[k][i])->current();
            }
        });
        if constexpr (requires { properties::Binding<T>::finish(built_, *this); })
            properties::Binding<T>::finish(built_, *this);
        return built_;
    }

    template <class F>
    static void each_field(F&& f) {
        std::size_t k = 0;
        std::apply([&](const auto&... e) { (f(k++, e), ...); }, properties::Binding<T>::fields);
    }
    template <class F>
    void each(F&& f) {
        each_field([&](std::size_t k, const auto& e) {
            if constexpr (requires { e.name; }) f(k, e);  // a prefix group is reached by its own ids
        });
    }

    // The id of a member of the interface, its name in any case.
    static DISPID id_of(const wchar_t* name) {
        const std::wstring_view n(name);
        for (const members::Member& m : members::Members<T>::list.m)
            if (n.size() == m.name.first.size() + m.name.second.size() &&
                objects::same_name(n.substr(0, m.name.first.size()), m.name.first) &&
                objects::same_name(n.substr(m.name.first.size()), m.name.second))
                return m.id;
        return DISPID_UNKNOWN;
    }

    template <class M>
    HRESULT member(std::size_t k, M& m, bool put, const VARIANT* value, UINT indices, std::int64_t index,
                   VARIANT& out) {
        if constexpr (properties::Bound<M>) {
            if (indices) return DISP_E_BADPARAMCOUNT;
            if (!put) {
                children_[k]->AddRef();
                V_VT(&out) = VT_DISPATCH;
                V_DISPATCH(&out) = children_[k];
                return S_OK;
            }
            // `Set` to another object of the same kind: it becomes the sub-object.
            IDispatch* other = V_VT(value) == VT_DISPATCH ? V_DISPATCH(value) : nullptr;
            if (!own_data<M>(other)) return DISP_E_TYPEMISMATCH;
            other->AddRef();
            children_[k]->Release();
            children_[k] = other;
            return S_OK;
        } else if constexpr (members::is_vector<M>) {
            if (put || indices != 1) return DISP_E_BADPARAMCOUNT;
            if (index < 1 || static_cast<std::size_t>(index) > items_[k].size()) return DISP_E_BADINDEX;
            IDispatch* item = items_[k][static_cast<std::size_t>(index - 1)];
            item->AddRef();
            V_VT(&out) = VT_DISPATCH;
            V_DISPATCH(&out) = item;
            return S_OK;
        } else if constexpr (members::is_indexed<M>) {
            if (indices != 1) return DISP_E_BADPARAMCOUNT;
            if (index < std::numeric_limits<std::int16_t>::min() || index > std::numeric_limits<std::int16_t>::max())
                return DISP_E_BADINDEX;
            const auto i = static_cast<std::int16_t>(index);
            using E = std::remove_cvref_t<decltype(m(i))>;
            if (!put) return give_value(static_cast<E>(m(i)), out);
            E v{};
            if (!take_value(*value, v)) return DISP_E_TYPEMISMATCH;
            m.set(i, std::move(v));
            return S_OK;
        } else {
            if (indices) return DISP_E_BADPARAMCOUNT;
            if (!put) return give_value(m, out);
            return take_value(*value, m) ? S_OK : DISP_E_TYPEMISMATCH;
        }
    }

    // ToJson() gives the object as a report of the job format; LoadJson(text)
    // takes one, in place of all the object held (its sub-objects stay the
    // same objects). A text that is no such report raises its reason.
    HRESULT json_method(DISPID id, const DISPPARAMS& params, VARIANT* result, EXCEPINFO* excep) {
        if (id == members::kToJson) {
            if (params.cArgs != 0) return DISP_E_BADPARAMCOUNT;
            if (result) {
                std::string json;
                {
                    readback::JsonText text(json);
                    text.put('{');
                    append_json(text);
                    text.put('}');
                }
                objects::give(json, *result);
            }
            return S_OK;
        }
        std::string text;
        if (params.cArgs != 1) return DISP_E_BADPARAMCOUNT;
        if (!objects::take(deref(params.rgvarg[0]), text)) return DISP_E_TYPEMISMATCH;
        try {
            const nlohmann::json j = nlohmann::json::parse(text);
            T fresh{};
            json_binding::read(json_binding::NlohmannValue{j}, fresh, json_binding::Path{nullptr, "LoadJson"});
            assign(fresh, j);
        } catch (const std::bad_alloc&) {
            throw;
        } catch (const std::exception& e) {
            return objects::raise(excep, "LoadJson", e.what());
        }
        return S_OK;
    }

public:
    // Takes `v` as the object's data; `j` says which properties were given
    // (for the derivation of what was not).
    void assign(const T& v, const nlohmann::json& j) {
        static const T fresh{};
        data_ = v;
        each([&](std::size_t k, const auto& f) {
            using M = std::remove_reference_t<decltype(data_.*(f.member))>;
            const std::string name(f.name);
            put_[k] = j.is_object() && j.contains(name);
            const nlohmann::json& given = put_[k] ? j[name] : nlohmann::json();
            if constexpr (!properties::Bound<M> && !members::is_vector<M>) {
                // What was not given holds what the reader derived: the
                // object keeps what the host gave, and derives when built.
                if (!put_[k]) data_.*(f.member) = fresh.*(f.member);
            } else if constexpr (properties::Bound<M>) {
                static_cast<DataObject<M>*>(children_[k])->assign(v.*(f.member), given);
            } else if constexpr (members::is_vector<M>) {
                using Item = typename M::value_type;
                for (IDispatch* c : items_[k]) c->Release();
                items_[k].clear();
                const M& items = v.*(f.member);
                for (std::size_t i = 0; i < items.size(); ++i) {
                    auto* item = new DataObject<Item>();
                    items_[k].push_back(item);
                    item->assign(items[i], given.is_array() && i < given.size() ? given[i] : nlohmann::json());
                }
            }
        });
        stamp_ = objects::next_stamp();
    }

    // The members as a report of the job format shows them: what the host
    // set (a default value too) and what differs from a fresh object, with
    // nothing derived.
    void append_json(readback::JsonText& out) const {
        static const T fresh{};
        each_field([&](std::size_t k, const auto& e) {
            if constexpr (requires { e.prefix; }) {
                readback::append_members(out, data_.*(e.member), e.prefix);
            } else {
                using M = std::remove_cvref_t<decltype(data_.*(e.member))>;
                const M& m = data_.*(e.member);
                const std::size_t before = out.size();
                out.put_key({}, e.name);
                if constexpr (properties::Bound<M>) {
                    out.put('{');
                    static_cast<const DataObject<M>*>(children_[k])->append_json(out);
                    out.put('}');
                    if (!put_[k] && out.ends_with_empty_object()) out.cut(before);
                } else if constexpr (members::is_vector<M>) {
                    if (!put_[k] && items_[k].empty()) return out.cut(before);
                    out.put('[');
                    for (const IDispatch* item : items_[k]) {
                        if (out.back() != '[') out.put(',');
                        out.put('{');
                        static_cast<const DataObject<typename M::value_type>*>(item)->append_json(out);
                        out.put('}');
                    }
                    out.put(']');
                } else {
                    if (!put_[k] && readback::detail::is_default(m, fresh.*(e.member))) return out.cut(before);
                    readback::detail::append_value(out, m);
                }
            }
        });
    }

private:
    HRESULT group_extra(std::size_t k, members::Extra e, bool put, VARIANT& out) {
        HRESULT hr = DISP_E_MEMBERNOTFOUND;
        each([&](std::size_t i, const auto& f) {
            using M = std::remove_reference_t<decltype(data_.*(f.member))>;
            if constexpr (members::is_vector<M>) {
                if (i != k) return;
                using Item = typename M::value_type;
                auto& list = items_[k];
                if (e == members::kCount) {
                    hr = put ? DISP_E_MEMBERNOTFOUND : give_value(static_cast<std::int64_t>(list.size()), out);
                } else if (e == members::kAdd) {
                    list.push_back(new DataObject<Item>());
                    list.back()->AddRef();
                    V_VT(&out) = VT_DISPATCH;
                    V_DISPATCH(&out) = list.back();
                    hr = S_OK;
                } else {
                    for (IDispatch* c : list) c->Release();
                    list.clear();
                    hr = S_OK;
                }
            }
        });
        return hr;
    }

    template <class V>
    static HRESULT give_value(const V& v, VARIANT& out) {
        if constexpr (std::is_same_v<V, std::string> || std::is_same_v<V, bool>) {
            objects::give(v, out);
        } else if constexpr (std::is_integral_v<V>) {
            objects::give(static_cast<std::int64_t>(v), out);
        } else {
            return DISP_E_MEMBERNOTFOUND;
        }
        return S_OK;
    }
    template <class V>
    static bool take_value(const VARIANT& value, V& out) {
        if constexpr (std::is_same_v<V, std::string> || std::is_same_v<V, bool>) {
            return objects::take(value, out);
        } else if constexpr (std::is_integral_v<V>) {
            std::int64_t x = 0;
            if (!objects::take(value, x) || x < std::numeric_limits<V>::min() || x > std::numeric_limits<V>::max())
                return false;
            out = static_cast<V>(x);
            return true;
        } else {
            return false;
        }
    }

    DualView<DataObject> view_{dual_table<DataObject, T>(), this};       // the dual interface
    DualView<DataObject> errors_{error_info_table<DataObject>(), this};  // ISupportErrorInfo
    T data_{};                                                           // what the host set, without what is derived
    T built_{};                          // data_ with its sub-objects, items and what is derived, as of synced_
    IDispatch* children_[kFields] = {};  // the sub-objects, by field
    std::vector<IDispatch*> items_[kFields] = {};  // the items of the repeating groups, by field
    std::bitset<kFields> put_;                     // the properties the host set
    std::uint64_t stamp_;                          // the host's last change to the object itself
    std::uint64_t synced_ = 0;                     // the newest change built_ holds
};

}  // namespace tamrel::com
