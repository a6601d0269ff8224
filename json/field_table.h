// What the readers of data objects share: the property tables' names, the
// request error and the path of a value. Standard library only.
#pragma once
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>

#include "core/property_table.h"

namespace tamrel::json_binding {

// The property tables live beside their data objects (core/property_table.h).
using properties::Binding;
using properties::Bound;
using properties::fail;
using properties::Field;
using properties::field;
using properties::Prefixed;
using properties::prefixed;
using properties::RequestError;

// Where a value sits ("args.objMeldung.Vorgang.PLZ"), kept as a chain of
// pieces and turned into text only when a request error is reported.
struct Path {
    const Path* parent = nullptr;
    std::string_view key;   // property name, or empty for an array element
    std::size_t index = 0;  // array element (from 1) when key is empty
    std::string text() const {
        std::string t = parent ? parent->text() : std::string();
        if (!key.empty()) {
            if (parent) t += '.';
            t += key;
        } else {
            t += '[' + std::to_string(index) + ']';
        }
        return t;
    }
};

// Items of a list and entries of an indexed property are numbered by a
// 16-bit index.
inline constexpr std::size_t kMaxItems = 32767;

[[noreturn]] inline void fail(const Path& path, std::string_view what) { fail(path.text(), what); }

}  // namespace tamrel::json_binding
