// The JSON reader of the data objects and structures: parsing, the rejection
// of unknown keys and the error paths ("objMeldung.Vorgang.Geburtsdatum:
// expected a string") all come from each type's property table
// (component/bindings/field_table.h).
#pragma once
#include <algorithm>
#include <array>
#include <atomic>
#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "core/indexed.h"
#include "core/short_bytes.h"
#include "json/field_table.h"

namespace tamrel::json_binding {

using json = nlohmann::json;

// The reader works on any JSON value through an adapter with: is_string /
// string / get_string (both at once), is_bool / boolean, is_integer /
// integer(lo, hi, out), is_array / each_element(f), is_object /
// each_member(f(key, value)).
// NlohmannValue adapts nlohmann-json (the call protocol); component/json_scan.h
// (plain JSON) and component/json_simd.h (simdjson's DOM, for everything
// else) serve tamrel generate.
struct NlohmannValue {
    const json& j;
    bool is_null() const { return j.is_null(); }
    bool is_string() const { return j.is_string(); }
    std::string_view string() const { return j.get_ref<const std::string&>(); }
    bool get_string(std::string_view& out) const { return is_string() && (out = string(), true); }
    bool is_bool() const { return j.is_boolean(); }
    bool boolean() const { return j.get<bool>(); }
    bool is_integer() const { return j.is_number_integer(); }
    bool integer(std::int64_t lo, std::int64_t hi, std::int64_t& out) const {
        if (j.is_number_unsigned() && j.get<std::uint64_t>() > static_cast<std::uint64_t>(hi)) return false;
        out = j.get<std::int64_t>();
        return out >= lo && out <= hi;
    }
    bool is_array() const { return j.is_array(); }
    std::size_t size() const { return j.size(); }
    template <class F>
    void each_element(F&& f) const {
        for (const auto& e : j) f(NlohmannValue{e});
    }
    bool is_object() const { return j.is_object(); }
    template <class F>
    void each_member(F&& f) const {
        for (const auto& [k, v] : j.items()) f(std::string_view(k), NlohmannValue{v});
    }
};

template <class V>
void read(const V& v, std::string& out, const Path& path) {
    std::string_view text;
    if (!v.get_string(text)) fail(path, "expected a string");
    // Appended to the emptied string: cheaper than the general assign, and
    // the buffer is kept.
    out.clear();
    out.append(text);
}

template <class V>
void read(const V& v, bool& out, const Path& path) {
    if (!v.is_bool()) fail(path, "expected true or false");
    out = v.boolean();
}

template <class V, class I>
requires(std::is_integral_v<I> && !std::is_same_v<I, bool>) void read(const V& v, I& out, const Path& path) {
    if (!v.is_integer()) fail(path, "expected an integer");
    std::int64_t x = 0;
    if (!v.integer(std::numeric_limits<I>::min(), std::numeric_limits<I>::max(), x))
        fail(path, sizeof(I) == 2 ? "integer out of the 16-bit range" : "integer out of the 32-bit range");
    out = static_cast<I>(x);
}

// The index that a key spells in canonical decimal ("0", "1", … "32767":
// digits only, no sign, no leading zero), or -1: one spelling per index, so
// that two keys can never name the same entry.
inline int canonical_index(std::string_view k) {
    if (k.empty() || k.size() > 5 || (k[0] == '0' && k.size() > 1)) return -1;
    int idx = 0;
    for (char c : k) {
        if (c < '0' || c > '9') return -1;
        idx = idx * 10 + (c - '0');
    }
    return idx <= 32767 ? idx : -1;
}

// An entry is read in its place (an index given twice is read again: texts
// are emptied first, numbers overwritten); flags are stored as bytes, so
// they are read into a bool first.
template <class T, class V>
void read_entry(const V& e, typename Indexed<T>::Stored& place, const Path& path) {
    if constexpr (std::is_same_v<T, bool>) {
        bool x = false;
        read(e, x, path);
        place = x;
    } else {
        read(e, place, path);
    }
}

template <class V, class T>
void read(const V& v, Indexed<T>& out, const Path& path) {
    out.clear();
    if (v.is_array()) {
        if constexpr (requires { v.size(); }) out.reserve(std::min<std::size_t>(v.size(), kMaxItems));
        std::int32_t i = 1;
        v.each_element([&](const V& e) {
            if (static_cast<std::size_t>(i) > kMaxItems) fail(path, "more than 32767 entries");
            read_entry<T>(e, out.next_slot(), Path{&path, {}, static_cast<std::size_t>(i)});
            ++i;
        });
        return;
    }
    if (!v.is_object()) fail(path, "expected an object of index to value, or an array");
    std::vector<std::int16_t> given;
    v.each_member([&](std::string_view k, const V& e) {
        const Path here{&path, k};
        const int idx = canonical_index(k);
        if (idx < 0) fail(here, "expected an index from 0 to 32767 in decimal, without sign or leading zeros");
        given.push_back(static_cast<std::int16_t>(idx));
        read_entry<T>(e, out.slot(static_cast<std::int16_t>(idx)), here);
    });
    // An index given twice would drop a value (only the last one is kept).
    std::sort(given.begin(), given.end());
    const auto twice = std::adjacent_find(given.begin(), given.end());
    if (twice != given.end()) fail(Path{&path, std::to_string(*twice)}.text(), "given twice");
}

template <class V, Bound T>
void read(const V& v, T& out, const Path& path);

template <class V, class T>
void read(const V& v, std::vector<T>& out, const Path& path) {
    if (!v.is_array()) fail(path, "expected an array");
    out.clear();
    std::size_t i = 1;
    v.each_element([&](const V& e) {
        if (i > kMaxItems) fail(path, "more than 32767 items");
        T x{};
        read(e, x, Path{&path, {}, i++});
        out.push_back(std::move(x));
    });
}

// The properties of a type, each with its reader, found through a small
// open-addressing hash table: one hash and, as a rule, one comparison per
// key.
template <class O, class V>
struct Entry {
    std::string_view name;
    void (*read)(const V&, O&, const Path&);
};

// The first and last eight bytes (four, or three picked, of shorter names)
// and the length, mixed by one multiplication; a property name differs from
// its siblings there.
inline std::size_t name_hash(std::string_view s) {
    const std::size_t n = s.size();
    const char* p = s.data();
    std::uint64_t a = 0, b = 0;
    if (n >= 8) {
        a = bytes::load8(p);
        b = bytes::load8(p + n - 8);
    } else if (n >= 4) {
        a = bytes::load4(p);
        b = bytes::load4(p + n - 4);
    } else if (n > 0) {
        a = static_cast<unsigned char>(p[0]) | static_cast<unsigned char>(p[n / 2]) << 8 |
            static_cast<std::uint64_t>(static_cast<unsigned char>(p[n - 1])) << 16;
    }
    return static_cast<std::size_t>(((a ^ ((b << 29) | (b >> 35)) ^ n) * 0x9E3779B97F4A7C15ULL) >> 32);
}

template <class O, class V>
struct Dispatch {
    std::vector<Entry<O, V>> entries;
    std::vector<int> slots;  // index into entries, -1 for an empty slot; a power of two long
    // The entry that followed each entry (the last: the first entry) in the
    // object read last: a caller writes its objects' properties in one
    // order, so the next key is mostly the one guessed, and one comparison
    // takes the place of the hash. Only a guess, shared by the threads.
    mutable std::unique_ptr<std::atomic<int>[]> next;

    const Entry<O, V>* find_after(int previous, std::string_view key) const {
        std::atomic<int>& guess = next[previous < 0 ? entries.size() : static_cast<std::size_t>(previous)];
        const int g = guess.load(std::memory_order_relaxed);
        if (g >= 0 && bytes::equal(entries[static_cast<std::size_t>(g)].name, key))
            return &entries[static_cast<std::size_t>(g)];
        const Entry<O, V>* e = find(key);
        if (e) guess.store(static_cast<int>(e - entries.data()), std::memory_order_relaxed);
        return e;
    }
    void index() {
        std::size_t n = 8;
        while (n < 4 * entries.size()) n *= 2;
        slots.assign(n, -1);
        for (std::size_t i = 0; i < entries.size(); ++i) {
            std::size_t h = name_hash(entries[i].name) & (n - 1);
            while (slots[h] >= 0) h = (h + 1) & (n - 1);
            slots[h] = static_cast<int>(i);
        }
        next = std::make_unique<std::atomic<int>[]>(entries.size() + 1);
        for (std::size_t i = 0; i <= entries.size(); ++i) next[i].store(-1, std::memory_order_relaxed);
    }
    const Entry<O, V>* find(std::string_view key) const {
        const std::size_t mask = slots.size() - 1;
        for (std::size_t h = name_hash(key) & mask;; h = (h + 1) & mask) {
            const int i = slots[h];
            if (i < 0) return nullptr;
            if (bytes::equal(entries[static_cast<std::size_t>(i)].name, key))
                return &entries[static_cast<std::size_t>(i)];
        }
    }
};

// The properties an object held, for the rules that depend on whether a
// property was given (a bound that follows the indices given).
template <class O, class V>
struct Present {
    const Dispatch<O, V>& table;
    std::array<bool, std::tuple_size_v<decltype(Binding<O>::fields)>> seen{};
    bool has(std::string_view key) const {
        const auto* e = table.find(key);
        return e && seen[static_cast<std::size_t>(e - table.entries.data())];
    }
};

template <class O, class V, std::size_t... I>
Dispatch<O, V> make_dispatch(std::index_sequence<I...>) {
    Dispatch<O, V> d;
    auto add = [&](const auto& f, auto reader) {
        if constexpr (requires { f.name; }) d.entries.push_back({f.name, reader});
    };
    (add(
         std::get<I>(Binding<O>::fields),
         +[](const V& v, O& out, const Path& path) {
             const auto& f = std::get<I>(Binding<O>::fields);
             if constexpr (requires { f.name; }) read(v, out.*(f.member), path);
         }),
     ...);
    d.index();
    return d;
}

template <class O, class V>
const Dispatch<O, V>& dispatch() {
    static const auto table =
        make_dispatch<O, V>(std::make_index_sequence<std::tuple_size_v<decltype(Binding<O>::fields)>>());
    return table;
}

template <class V, class T, class M, class O>
bool try_prefixed(const Prefixed<T, M>& f, std::string_view key, const V& value, O& out, const Path& path) {
    if (!key.starts_with(f.prefix)) return false;
    const auto* e = dispatch<M, V>().find(key.substr(f.prefix.size()));
    if (!e) return false;
    e->read(value, out.*(f.member), path);
    return true;
}
template <class V, class T, class M, class O>
bool try_prefixed(const Field<T, M>&, std::string_view, const V&, O&, const Path&) {
    return false;
}

template <class V, Bound T>
void read(const V& v, T& out, const Path& path) {
    if (!v.is_object()) fail(path, "expected an object");
    const auto& table = dispatch<T, V>();
    constexpr bool tracks = requires(T & t, const Present<T, V>& p) { Binding<T>::finish(t, p); };
    Present<T, V> present{table};
    int previous = -1;
    v.each_member([&](std::string_view key, const V& value) {
        const Path here{&path, key};
        if (const auto* e = table.find_after(previous, key)) {
            previous = static_cast<int>(e - table.entries.data());
            // A property given twice would drop its first value.
            bool& seen = present.seen[static_cast<std::size_t>(e - table.entries.data())];
            if (seen) fail(here, "given twice");
            seen = true;
            e->read(value, out, here);
            return;
        }
        bool known = false;
        std::apply([&](const auto&... f) { ((known = known || try_prefixed(f, key, value, out, here)), ...); },
                   Binding<T>::fields);
        if (!known) fail(here, "unknown property");
    });
    if constexpr (tracks) Binding<T>::finish(out, present);
}

// Puts an object read before back to its empty state, property by
// property, without giving up its strings' buffers: the next report's
// values are copied into them instead of into new ones.
template <class T>
void reset(T& v, const T& empty) {
    if constexpr (std::is_same_v<T, std::string>)
        v.clear();
    else if constexpr (Bound<T>)
        std::apply([&](const auto&... f) { (reset(v.*(f.member), empty.*(f.member)), ...); }, Binding<T>::fields);
    else if constexpr (requires { v.clear(); })
        v.clear();  // a list: emptied, its buffer kept
    else
        v = empty;
}

template <class T>
T parse(const json& j, std::string_view path) {
    T v{};
    read(NlohmannValue{j}, v, Path{nullptr, path});
    return v;
}

}  // namespace tamrel::json_binding
