// The arguments of a request that the scanner reads straight from the line,
// in the order the method asks for them. Callers write the arguments in
// the order of the parameter list as a rule, so each is read where the
// cursor stands; one asked for before those written ahead of it is found by
// passing over them, and they are kept (where their values start) for when
// the method asks for them.
#pragma once
#include <algorithm>
#include <cstddef>
#include <string_view>

#include "core/short_bytes.h"
#include "json/json_limits.h"
#include "json/json_scan.h"

namespace tamrel {

class ScanArgs {
public:
    static constexpr std::size_t kMax = 8;  // more than any method takes
    ScanArgs(const char** at, const json_binding::QuoteIndex* quotes) : at_(at), quotes_(quotes) {}

    // Calls read(value) with argument `name`; false when the request does
    // not give it.
    template <class F>
    bool with(std::string_view name, F&& read) {
        Arg* a = kept(name);
        if (a && a != at_value_) {  // passed over before: read where it starts
            a->read = true;
            const char* from = a->value;
            read(json_binding::ScanValue{&from, quotes_});
            return true;
        }
        if (a)
            at_value_ = nullptr;  // has() stopped here: read in place
        else if (!(a = find_ahead(name)))
            return false;
        a->read = true;
        read(json_binding::ScanValue{at_, quotes_});
        after_value();
        return true;
    }
    // Whether the request gives argument `name`; when it is the next one,
    // the cursor stays at its value, for with() to read it there.
    bool has(std::string_view name) {
        if (kept(name)) return true;
        at_value_ = find_ahead(name);
        return at_value_ != nullptr;
    }
    // After the method: the object closed and every argument given read
    // (one given twice, or one the method did not ask for, is not).
    bool all_read() const {
        return closed_ && std::all_of(args_, args_ + count_, [](const Arg& a) { return a.read; });
    }
    template <class F>
    bool all_names(F&& f) const {
        return std::all_of(args_, args_ + count_, [&](const Arg& a) { return f(a.name); });
    }

private:
    struct Arg {
        std::string_view name;
        const char* value;
        bool read;
    };
    Arg* kept(std::string_view name) {
        for (std::size_t i = 0; i < count_; ++i)
            if (!args_[i].read && bytes::equal(args_[i].name, name)) return &args_[i];
        return nullptr;
    }
    // Passes over the arguments ahead up to `name`, keeping where each
    // starts; `name`'s, with the cursor at its value, or nullptr at the end
    // of the object.
    Arg* find_ahead(std::string_view name) {
        while (next_name()) {
            Arg& a = args_[count_++];
            a = {name_, *at_, false};
            if (bytes::equal(name_, name)) return &a;
            pass_over();
        }
        return nullptr;
    }
    // Reads the next argument's name into name_, the cursor left at its
    // value; false at the end of the object.
    bool next_name() {
        const json_binding::ScanValue cursor{at_, quotes_};
        if (at_value_) {  // the value has() stopped at was not read: pass over it
            at_value_ = nullptr;
            pass_over();
        }
        if (closed_) return false;
        if (!begun_) {
            cursor.expect('{');
            begun_ = true;
            if (cursor.peek() == '}') {
                ++*at_;
                closed_ = true;
                return false;
            }
        }
        if (count_ == kMax || cursor.peek() != '"') json_binding::ScanValue::miss();
        name_ = cursor.token();
        cursor.expect(':');
        return true;
    }
    void pass_over() {
        json_binding::ScanValue{at_, quotes_}.skip(kMaxJsonDepth);
        after_value();
    }
    void after_value() {
        const char c = json_binding::ScanValue{at_, quotes_}.peek();
        ++*at_;
        if (c == '}')
            closed_ = true;
        else if (c != ',')
            json_binding::ScanValue::miss();
    }

    const char** at_;
    const json_binding::QuoteIndex* quotes_;
    Arg args_[kMax];
    std::size_t count_ = 0;
    std::string_view name_;
    Arg* at_value_ = nullptr;  // the argument whose value the cursor is at
    bool begun_ = false, closed_ = false;
};

}  // namespace tamrel
