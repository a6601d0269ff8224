// A JSON text written into a string's buffer through a pointer. A report
// read back is written as a few hundred short keys and values, and each of
// the string's own appends is a call into the library; here a value is
// stored with a few instructions, and the string keeps its size only
// while the text is written (from the constructor to the destructor).
#pragma once
#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "core/short_bytes.h"
#include "core/text.h"
#include "json/json_escape.h"

namespace tamrel::readback {

class JsonText {
public:
    explicit JsonText(std::string& out) : out_(out) {
        const std::size_t used = out.size();
        out_.resize(std::max(out_.capacity(), used + kRoom));
        at(used);
    }
    ~JsonText() { out_.resize(size()); }
    JsonText(const JsonText&) = delete;
    JsonText& operator=(const JsonText&) = delete;

    std::size_t size() const { return static_cast<std::size_t>(pos_ - out_.data()); }
    char back() const { return pos_ != out_.data() ? pos_[-1] : '\0'; }
    // Whether the text ends in a member whose value is an empty object.
    bool ends_with_empty_object() const { return size() >= 3 && pos_[-1] == '}' && pos_[-2] == '{' && pos_[-3] == ':'; }
    void cut(std::size_t size) { pos_ = out_.data() + size; }

    void put(char c) { *room(1) = c, ++pos_; }
    void put(std::string_view s) {
        bytes::copy_short(room(s.size()), s.data(), s.size());
        pos_ += s.size();
    }
    template <class Int>
    void put_number(Int v) {
        char* p = room(24);
        pos_ = std::to_chars(p, p + 24, v).ptr;
    }
    // A key with its colon, after a comma where a member or an entry came before.
    void put_key(std::string_view prefix, std::string_view name) {
        char* p = open_key(prefix.size() + name.size());
        bytes::copy_short(p, prefix.data(), prefix.size());
        bytes::copy_short(p + prefix.size(), name.data(), name.size());
        close_key(p + prefix.size() + name.size());
    }
    // A key made beforehand, quotes and colon included.
    template <std::size_t N>
    void put_key(const std::array<char, N>& key) {
        char* p = after_comma(N + 1);
        std::memcpy(p, key.data(), N);
        pos_ = p + N;
    }
    // An entry's index as a key.
    void put_key(std::int32_t index) {
        char* p = open_key(11);
        close_key(std::to_chars(p, p + 11, index).ptr);
    }
    // A text, quoted; escaped (and checked as UTF-8) where it holds a
    // character that needs an escape.
    void put_string(std::string_view s) {
        if (s.empty()) return put(std::string_view("\"\""));
        const JsonTextKind kind = json_text_kind(s);
        if (kind == JsonTextKind::Plain || (kind == JsonTextKind::Utf8 && text::is_valid_utf8(s))) {
            char* p = room(s.size() + 2);
            *p = '"';
            bytes::copy_short(p + 1, s.data(), s.size());
            p[s.size() + 1] = '"';
            pos_ = p + s.size() + 2;
            return;
        }
        put_escaped(s);
    }

private:
    static constexpr std::size_t kRoom = 2048;

    // Escaped beside the text and copied in: the string keeps its size
    // (resizing it would clear its whole spare room for each such text).
    [[gnu::noinline]] void put_escaped(std::string_view s) {
        thread_local std::string escaped;
        escaped.clear();
        append_json_string(escaped, s);
        put(escaped);
    }
    // The text is written between pos_ and end_, the string's spare room;
    // the string's own size is set only when it grows and at the end.
    [[gnu::always_inline]] char* room(std::size_t n) {
        if (static_cast<std::size_t>(end_ - pos_) < n) [[unlikely]]
            grow(n);
        return pos_;
    }
    [[gnu::noinline]] void grow(std::size_t n) {
        const std::size_t used = size();
        out_.resize(std::max(2 * out_.size(), used + n + kRoom));
        at(used);
    }
    void at(std::size_t used) {
        pos_ = out_.data() + used;
        end_ = out_.data() + out_.size();
    }
    // Room for n bytes and a comma, and the comma where a member or an entry came before.
    char* after_comma(std::size_t n) {
        const bool comma = pos_ != out_.data() && pos_[-1] != '{' && pos_[-1] != '[';
        char* p = room(n + 1);
        if (comma) *p++ = ',';
        return p;
    }
    char* open_key(std::size_t longest) {
        char* p = after_comma(longest + 3);
        *p++ = '"';
        return p;
    }
    void close_key(char* p) {
        *p++ = '"';
        *p++ = ':';
        pos_ = p;
    }
    std::string& out_;
    char* pos_ = nullptr;
    char* end_ = nullptr;
};

}  // namespace tamrel::readback
