#include "json/json_limits.h"

#include <string>
#include <vector>

#include "core/line_reader.h"
#include "json/json_binding.h"

namespace tamrel {
namespace {

using nlohmann::json;

// Checks the bounds in one pass over the text before it is parsed (the
// parser's own callback interface rescans each array after every element,
// which is quadratic in the array's length).
void check_bounds(std::string_view text) {
    int depth = 0;
    std::size_t values = 0;
    bool in_string = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (in_string) {
            if (c == '\\')
                ++i;
            else if (c == '"')
                in_string = false;
            continue;
        }
        switch (c) {
            case '"':
                in_string = true;
                break;
            case '[':
            case '{':
                if (++depth > kMaxJsonDepth)
                    throw json_binding::RequestError("nested deeper than " + std::to_string(kMaxJsonDepth) + " levels");
                [[fallthrough]];
            case ',':
                if (++values > kMaxJsonValues)
                    throw json_binding::RequestError("more than " + std::to_string(kMaxJsonValues) + " values");
                break;
            case ']':
            case '}':
                --depth;
                break;
            default:
                break;
        }
    }
}

// Builds the document as nlohmann's own parser does, and refuses an object
// that names a key twice: nlohmann would keep the last value and silently
// drop the first, and a property must never be dropped.
class UniqueKeys {
public:
    explicit UniqueKeys(json& root) : root_(root) {}

    bool null() { return value(nullptr); }
    bool boolean(bool v) { return value(v); }
    bool number_integer(json::number_integer_t v) { return value(v); }
    bool number_unsigned(json::number_unsigned_t v) { return value(v); }
    bool number_float(json::number_float_t v, const std::string&) { return value(v); }
    bool string(std::string& v) { return value(std::move(v)); }
    bool binary(json::binary_t& v) { return value(std::move(v)); }
    bool start_object(std::size_t) { return open(json::value_t::object); }
    bool start_array(std::size_t) { return open(json::value_t::array); }
    bool end_object() { return close(); }
    bool end_array() { return close(); }
    bool key(std::string& k) {
        Level& top = stack_.back();
        if (top.node->contains(k)) throw DuplicateKey(path(k) + ": given twice");
        top.slot = &(*top.node)[k];
        top.key = std::move(k);
        return true;
    }
    template <class Exception>
    bool parse_error(std::size_t, const std::string&, const Exception& e) {
        throw e;
    }

private:
    struct Level {
        json* node;
        json* slot = nullptr;  // the member whose key came last
        std::string key;
        std::size_t items = 0;  // elements of an array so far
    };

    json* place(json&& v) {
        if (stack_.empty()) return &(root_ = std::move(v));
        Level& top = stack_.back();
        if (top.node->is_array()) {
            ++top.items;
            top.node->push_back(std::move(v));
            return &top.node->back();
        }
        return &(*top.slot = std::move(v));
    }
    template <class T>
    bool value(T&& v) {
        place(json(std::forward<T>(v)));
        return true;
    }
    bool open(json::value_t t) {
        stack_.push_back(Level{place(json(t)), nullptr, {}, 0});
        return true;
    }
    bool close() {
        stack_.pop_back();
        return true;
    }
    // "args.objMeldung.KsZeileA.1", as the binding names a value.
    std::string path(const std::string& last) const {
        std::string t;
        for (const Level& l : stack_) {
            if (&l == &stack_.back()) break;
            if (l.node->is_array()) {
                t += '[' + std::to_string(l.items) + ']';
            } else {
                if (!t.empty()) t += '.';
                t += l.key;
            }
        }
        if (!t.empty()) t += '.';
        return t + last;
    }

    json& root_;
    std::vector<Level> stack_;
};

}  // namespace

std::string line_too_long_text(std::size_t bytes) { return line_too_long_text(bytes, kMaxLineBytes); }

json parse_bounded(std::string_view text) {
    check_bounds(text);
    json root;
    UniqueKeys sax(root);
    json::sax_parse(text, &sax);
    return root;
}

}  // namespace tamrel
