// The one way a fixed-width record or block is written: fields appended left
// to right through the named encoders into a buffer, each field one
// statement (the statement number of the log line), one filled flag shared
// by every encoder of the block, and the length check that closes it.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "core/mlGen.h"
#include "core/routine.h"
#include "core/text.h"

namespace tamrel {

// The character at 1-based character position `pos` of a finished record
// (how flags are read back out of a record).
inline std::string_view char_at(std::string_view record, std::size_t pos) { return text::mid(record, pos, 1); }
inline bool is_j(std::string_view record, std::size_t pos) { return char_at(record, pos) == "J"; }

class Writer {
public:
    // Appends to `out`; the record starts at the buffer's current end.
    Writer(std::string& out, int& line) : out_(out), start_(out.size()), line_(line), filled_(&own_filled_) {}
    // As above, with the filled flag kept by the caller.
    Writer(std::string& out, int& line, bool& filled)
        : out_(out), start_(out.size()), line_(line), filled_(&filled) {}

    Writer& lit(std::string_view s) { ++line_; out_ += s; return *this; }
    Writer& an(std::string_view v, int width) { ++line_; mlGen::AppendAn(out_, v, width, *filled_); return *this; }
    Writer& n(std::string_view v, int width) { ++line_; mlGen::AppendN(out_, v, width, *filled_); return *this; }
    Writer& n(std::int64_t v, int width) { return n(mlGen::Decimal(v), width); }
    Writer& blank(int width) { return an({}, width); }
    Writer& zeros(int width) { return n(std::string_view{}, width); }
    Writer& pb(std::string_view v, int vor, int nach) { ++line_; mlGen::AppendPB(out_, v, vor, nach, *filled_); return *this; }
    Writer& bg(std::string_view v, int vor, int nach) { ++line_; mlGen::AppendBG(out_, v, vor, nach, *filled_); return *this; }
    Writer& jn(std::int32_t v) { ++line_; mlGen::AppendJN(out_, v, *filled_); return *this; }
    Writer& flag(bool yes) { return lit(yes ? "J" : "N"); }
    Writer& stamp(std::string_view dateText, int format, const Date& date, int width) {
        std::string t;
        mlGlobal::AppendCurrDate(t, dateText, format, date);
        return n(t, width);
    }

    bool filled() const { return *filled_; }
    void reset_filled() { *filled_ = false; }
    std::string_view record() const { return std::string_view(out_).substr(start_); }
    int& line() { return line_; }

    void check(int length, std::string_view name) {
        ++line_;
        mlGen::CheckLength(record(), length, name);
    }

private:
    std::string& out_;
    std::size_t start_;
    int& line_;
    bool own_filled_ = false;
    bool* filled_;
};

// A block whose fields all come from `fill`: its identifier, the fields, the
// length check under its identifier, all under the routine `context`.
// Returns whether any field held data.
template <class Fill>
bool write_block(std::string& out, std::string_view context, int length, std::string_view id, Fill&& fill) {
    return routine(context, [&](int& line) {
        bool filled = false;
        Writer w(out, line, filled);
        w.lit(id);
        fill(w);
        w.check(length, id);
        return filled;
    });
}

}  // namespace tamrel
