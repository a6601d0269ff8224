// The one way a fixed-width record or block is written: fields appended left
// to right by their declarations (core/layout.h), each through the encoder
// of its kind and at its declared width, into a buffer; each field one
// statement (the statement number of the log line), one filled flag shared
// by every encoder of the block, and the length check that closes it.
//
// A builder states no width or position: it names the declared field. In a
// build with assertions the writer holds each field to its declared
// position, so a builder that skips a field, writes one twice or in another
// order than its layout fails the test suite.
#pragma once
#include <cassert>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "core/amounts.h"
#include "core/block_plan.h"
#include "core/check_length.h"
#include "core/date_fields.h"
#include "core/decimal.h"
#include "core/flags.h"
#include "core/joined.h"
#include "core/layout.h"
#include "core/record_buffer.h"
#include "core/routine.h"
#include "core/text.h"
#include "core/text_fields.h"

namespace tamrel {

// Every member is inlined and nothing out of line is handed the writer (or
// a member of it): so the compiler keeps its pointers and counters in
// registers across the fields, where a writer that is address-taken would be
// reloaded from memory after every byte stored.
class Writer {
public:
    // Writes a record that is appended to `out` by the length check that
    // closes it (an error before or in the check appends nothing).
    Writer(std::string& out, int& line) : out_(out), line_(line) {}
    // As above, and `filled` is set once any field held data.
    Writer(std::string& out, int& line, bool& filled) : out_(out), line_(line), shared_(&filled) {}
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
    [[gnu::always_inline]] ~Writer() { publish(); }

    // The field as its declaration fixes it: a literal's text; any other
    // field with the content it declares, if any, else empty (blanks, or
    // zeros where the kind is numeric).
    [[gnu::always_inline]] Writer& put(const FieldLayout& f) {
        at(f);
        return f.kind == FieldKind::Literal ? lit(f.literal) : encode(f, f.literal);
    }
    // `v` through the encoder of the field's kind: a text, a number (written
    // as its digits) or a flag's truth (J or N).
    template <class V>
    [[gnu::always_inline]] Writer& put(const FieldLayout& f, const V& v) {
        at(f);
        if constexpr (std::is_same_v<V, bool>) {
            // A flag, or a fixed "J" that the builder writes as its decision.
            assert(f.kind == FieldKind::Flag || (f.kind == FieldKind::Literal && f.literal == (v ? "J" : "N")));
            return lit(v ? "J" : "N");
        } else if constexpr (std::is_integral_v<V>) {
            return encode(f, mlGen::Decimal(v));
        } else {
            return encode(f, std::string_view(v));
        }
    }
    // A text written as it is (the field's width is the text's), such as a
    // code chosen by the builder or a count patched in later.
    [[gnu::always_inline]] Writer& text(const FieldLayout& f, std::string_view s) {
        at(f);
        return lit(s);
    }
    // A J/N flag from an integer property (-1, 1: J).
    [[gnu::always_inline]] Writer& jn(const FieldLayout& f, std::int32_t v) {
        at(f);
        const char c = mlGen::JNChar(v, filled_);
        return lit({&c, 1});
    }
    // A block's flag: whether it follows the record, decided here for both
    // the record and the plan that appends the blocks.
    template <class Block>
    [[gnu::always_inline]] Writer& announce(const FieldLayout& f, BlockPlan<Block>& plan, Block block, bool follows) {
        plan.set(block, follows);
        return put(f, follows);
    }
    // A date stamp: GetCurrDate's text as a numeric field. The usual one, the
    // full creation time taken from the date itself, is written straight.
    [[gnu::always_inline]] Writer& stamp(const FieldLayout& f, std::string_view dateText, int format,
                                         const Date& date) {
        at(f);
        if (dateText.empty() && format == 1 && f.len == 14) {
            const std::size_t w = open_field(f.len);
            char* d = buf_.tail();
            put_hhnnss(put_yyyymmdd(d, date), date);
            const std::uint64_t zeros = bytes::kOnes * '0';
            if (((bytes::load8(d) ^ zeros) | (bytes::load8(d + 6) ^ zeros)) != 0) filled_ = true;
            return close_field(d + 14, w);
        }
        const mlGlobal::CurrDate text(dateText, format, date);
        return n(Joined(text.pieces()), f.len);
    }
    // Replaces the field, a single ASCII character, once the record is written.
    [[gnu::always_inline]] void patch(const FieldLayout& f, char c) {
        assert(f.len == 1);
        buf_.data()[f.pos - 1] = c;
    }
    // The fields that follow are an entry of a repeated group: their
    // positions count from the entry's start.
    [[gnu::always_inline]] void entry() {
#ifndef NDEBUG
        next_ = 1;
#endif
    }
    // The entries are done: the fields that follow come after the declared
    // `rows`.
    [[gnu::always_inline]] void after([[maybe_unused]] std::span<const FieldLayout> rows) {
#ifndef NDEBUG
        next_ = static_cast<std::uint16_t>(rows.back().pos + rows.back().len);
#endif
    }

    std::string_view record() const { return buf_.view(); }

    // The length check that closes the record and appends it: the declared
    // length, under the record's identifier or the `name` its check has
    // always reported. Every encoder writes exactly its width, so the writer
    // knows the record's length in characters without counting them again.
    [[gnu::always_inline]] void check(const RecordLayout& l) { check(l, l.id); }
    [[gnu::always_inline]] void check(const RecordLayout& l, std::string_view name) {
        assert(next_ == l.length + 1);
        check(l.length, name);
    }
    // As above, for a length that counts a repeated group's entries.
    [[gnu::always_inline]] void check(int length, std::string_view name) {
        ++line_;
        close(length, name);
    }
    // As above, for a length that is computed (in 16 bits) by the check's
    // own statement: an overflow there is the check's.
    template <class Length>
    requires std::is_invocable_r_v<int, Length>
    [[gnu::always_inline]] void check(Length&& length, std::string_view name) {
        ++line_;
        close(length(), name);
    }
    // Appends a record head whose length the caller checks with the rest.
    [[gnu::always_inline]] void end() {
        publish();
        out_.append(record());
    }

private:
    // Where the next field must begin, by the declarations so far.
    [[gnu::always_inline]] void at([[maybe_unused]] const FieldLayout& f) {
#ifndef NDEBUG
        assert(f.pos == next_);
        next_ = static_cast<std::uint16_t>(f.pos + f.len);
#endif
    }
    // The encoder of the field's kind, at its width.
    [[gnu::always_inline]] Writer& encode(const FieldLayout& f, std::string_view v) {
        switch (f.kind) {
            case FieldKind::N:
            case FieldKind::Date:
            case FieldKind::DateTime:
                return n(v, f.len);
            case FieldKind::Amount:
                return amount(v, f.len - f.decimals, f.decimals, false);
            case FieldKind::SignedAmount:
                return amount(v, f.len - 1 - f.decimals, f.decimals, true);
            default:
                assert(f.kind != FieldKind::Literal && f.kind != FieldKind::Flag);
                return an(v, f.len);
        }
    }
    [[gnu::always_inline]] Writer& lit(std::string_view s) {
        ++line_;
        buf_.put(s);
        for (char c : s) chars_ += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
        return *this;
    }
    [[gnu::always_inline]] Writer& an(std::string_view v, int width) {
        const std::size_t w = open_field(width);
        return close_field(mlGen::PutAn(buf_.tail(), v, w, filled_), w);
    }
    [[gnu::always_inline]] Writer& n(std::string_view v, int width) {
        const std::size_t w = open_field(width);
        return close_field(mlGen::PutN(buf_.tail(), v, w, filled_), w);
    }
    [[gnu::always_inline]] void close(int length, std::string_view name) {
        publish();
        assert(chars_ == text::char_count(record()));
        if (chars_ != static_cast<std::size_t>(length)) mlGen::CheckLength(record(), length, name);
        out_.append(record());
    }
    // A field of `width` characters begins: its statement is counted and the
    // buffer has room for it (four bytes a character) and the encoders'
    // scratch. Inlined at every field, like the encoders' fast paths: a call
    // per field would cost as much as the field itself.
    [[gnu::always_inline]] std::size_t open_field(int width) {
        ++line_;
        const std::size_t w = width < 0 ? 0 : static_cast<std::size_t>(width);
        buf_.room(4 * w + mlGen::kPutSlack);
        return w;
    }
    // The field of `w` characters ends at `end`.
    [[gnu::always_inline]] Writer& close_field(char* end, std::size_t w) {
        buf_.advance(end);
        chars_ += w;
        return *this;
    }

    [[gnu::always_inline]] Writer& amount(std::string_view v, int vor, int nach, bool with_sign) {
        const std::size_t w = open_field(vor + nach + (with_sign ? 1 : 0));
        return close_field(mlGen::PutAmount(buf_.tail(), v, vor, nach, with_sign, filled_), w);
    }
    // The caller's flag learns what the fields held (also when an error
    // ends the record early, as if each field had set it).
    [[gnu::always_inline]] void publish() {
        if (filled_ && shared_) *shared_ = true;
    }

    std::string& out_;
    int& line_;
    bool* shared_ = nullptr;
    // A member of its own, published to the caller's flag: pointing the
    // encoders at a member would make the writer address-taken (see below).
    bool filled_ = false;
    std::size_t chars_ = 0;
#ifndef NDEBUG
    std::uint16_t next_ = 1;
#endif
    RecordBuffer buf_;
};

// A block of the layout `l` whose fields after its identifier all come from
// `fill`: the identifier, the fields, the length check, all under the
// routine `context`. Returns whether any field held data.
template <class Fill>
bool write_block(std::string& out, std::string_view context, const RecordLayout& l, Fill&& fill) {
    return routine(context, [&](int& line) {
        bool filled = false;
        Writer w(out, line, filled);
        w.put(l.fields[0]);
        fill(w);
        w.check(l);
        return filled;
    });
}

}  // namespace tamrel
