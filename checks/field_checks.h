// The checks of single properties that the procedures' rule sets are made
// of: each adds its finding under the property's path.
#pragma once
#include <initializer_list>
#include <string>
#include <string_view>

#include "checks/finding.h"
#include "core/layout.h"

namespace tamrel::checks {

// The integer and decimal places of an amount field, without its sign.
constexpr std::size_t integer_places(const FieldLayout& f) {
    return f.len - f.decimals - (f.kind == FieldKind::SignedAmount ? 1u : 0u);
}

// A text property and the width of its field, as declared.
struct TextField {
    std::string_view name;
    const std::string& value;
    std::size_t width;
    TextField(std::string_view n, const std::string& v, const FieldLayout& f) : name(n), value(v), width(f.len) {}
};

// A member of a block that holds a date, or an amount of `integers` and
// `decimals` places.
template <class Block>
struct DateMember {
    std::string_view name;
    std::string Block::*member;
};
template <class Block>
struct NumberMember {
    std::string_view name;
    std::string Block::*member;
    std::size_t width;
    NumberMember(std::string_view n, std::string Block::*m, const FieldLayout& f) : name(n), member(m), width(f.len) {}
};
template <class Block>
struct AmountMember {
    std::string_view name;
    std::string Block::*member;
    std::size_t integers, decimals;
    AmountMember(std::string_view n, std::string Block::*m, const FieldLayout& f)
        : name(n), member(m), integers(integer_places(f)), decimals(f.decimals) {}
};

// The path of a property is put together only when it has a finding: the
// checks of a clean report allocate nothing.
class FieldChecks {
public:
    explicit FieldChecks(Findings& f) : f_(f) {}
    // A sub-object's properties, named "Object.Name"; `this` must outlive it.
    FieldChecks within(std::string_view name) const { return FieldChecks(f_, this, name); }
    // The `index`th item (1-based) of a list, named "List(index).Name".
    FieldChecks within(std::string_view name, std::size_t index) const {
        FieldChecks c(f_, this, name);
        c.index_ = index;
        return c;
    }

    void required(std::string_view name, std::string_view value) const;
    void date(std::string_view name, std::string_view value) const;
    // YYYYMM of a real month.
    void month(std::string_view name, std::string_view value) const;
    void period(std::string_view start_name, std::string_view start, std::string_view end) const;
    void whole_amount(std::string_view name, std::string_view value, std::size_t width) const;
    void decimal_amount(std::string_view name, std::string_view value, std::size_t integers, std::size_t decimals,
                        bool sign) const;
    // An amount of the field `f`: its places, and a sign where it has one.
    void amount(std::string_view name, std::string_view value, const FieldLayout& f) const {
        decimal_amount(name, value, integer_places(f), f.decimals, f.kind == FieldKind::SignedAmount);
    }
    void digits(std::string_view name, std::string_view value, std::size_t width) const;
    // A numeric field's value: digits, no more than `width` of them.
    void number(std::string_view name, std::string_view value, std::size_t width) const;
    // The creation date a record's time stamp is made of: empty (the date
    // of the run) or YYYYMMDD.
    void creation_date(std::string_view name, std::string_view value) const;
    void one_of(std::string_view name, std::string_view value, std::initializer_list<std::string_view> keys,
                const Rule& rule) const;
    // Longer than `width` characters: a text is cut (a warning), a key is wrong.
    void text(std::string_view name, std::string_view value, std::size_t width) const;
    void key(std::string_view name, std::string_view value, std::size_t width) const;
    template <class Block>
    void dates(const Block& b, std::initializer_list<DateMember<Block>> fields) const {
        for (const auto& f : fields) date(f.name, b.*f.member);
    }
    template <class Block>
    void numbers(const Block& b, std::initializer_list<NumberMember<Block>> fields) const {
        for (const auto& f : fields) number(f.name, b.*f.member, f.width);
    }
    // Unsigned amounts.
    template <class Block>
    void amounts(const Block& b, std::initializer_list<AmountMember<Block>> fields) const {
        for (const auto& f : fields) decimal_amount(f.name, b.*f.member, f.integers, f.decimals, false);
    }
    void texts(std::initializer_list<TextField> fields) const {
        for (const TextField& t : fields) text(t.name, t.value, t.width);
    }
    void versicherungsnummer(std::string_view name, std::string_view value) const;
    void betriebsnummer(std::string_view name, std::string_view value) const;
    // A required establishment number: present, of its form, its check digit right.
    void establishment(std::string_view name, std::string_view value) const {
        required(name, value);
        betriebsnummer(name, value);
    }
    void add(const Rule& rule, std::string_view name, std::string_view value) const { f_.add(rule, path(name), value); }

private:
    FieldChecks(Findings& f, const FieldChecks* parent, std::string_view name) : f_(f), parent_(parent), name_(name) {}
    std::string path(std::string_view name) const {
        if (!parent_) return std::string(name);
        return parent_->path(name_) + (index_ ? "(" + std::to_string(index_) + ")" : std::string()) + "." +
               std::string(name);
    }
    Findings& f_;
    const FieldChecks* parent_ = nullptr;
    std::string_view name_;
    std::size_t index_ = 0;
};

}  // namespace tamrel::checks
