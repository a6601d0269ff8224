// An indexed property of a data object: values by 16-bit index, an index
// that was not given reads as the type's empty value. Stored flat from the
// smallest index given, so a read is one bounds check.
#pragma once
#include <cstdint>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

namespace tamrel {

template <class T>
class Indexed {
public:
    // Booleans are kept as bytes (a vector of bool hands out proxies).
    using Stored = std::conditional_t<std::is_same_v<T, bool>, unsigned char, T>;
    using Read = std::conditional_t<std::is_same_v<T, bool>, bool, const T&>;

    // The values as plain numbers that a builder keeps in registers across
    // a loop (reading through the property itself, the compiler reloads
    // its vector after every byte the builder stores).
    class View {
    public:
        Read operator()(std::int16_t i) const {
            const auto k = static_cast<std::uint32_t>(std::int32_t{i} - first_);
            return k < count_ ? values_[k] : *empty_;
        }

    private:
        friend class Indexed;
        View(const Stored* values, std::uint32_t count, std::int32_t first, const Stored* empty)
            : values_(values), count_(count), first_(first), empty_(empty) {}
        const Stored* values_;
        std::uint32_t count_;
        std::int32_t first_;
        const Stored* empty_;
    };
    View view() const { return {values_.data(), static_cast<std::uint32_t>(values_.size()), first_, &empty_}; }

    Read operator()(std::int16_t i) const { return view()(i); }
    // Sets entry i from a value of T or one T is made from (a text from a
    // view): the entry after the largest is made from it at once, without
    // an empty one made first.
    template <class V>
    void set(std::int16_t i, V&& v) {
        if (values_.empty() || std::int32_t{i} - first_ != static_cast<std::int32_t>(values_.size())) [[unlikely]]
            set_apart(i, std::forward<V>(v));
        else if constexpr (std::is_same_v<T, bool>)
            values_.push_back(static_cast<bool>(v));
        else
            values_.emplace_back(std::forward<V>(v));
    }
    // The place of entry i, made (empty) when it is not there yet.
    Stored& slot(std::int16_t i) {
        if (values_.empty()) {
            first_ = i;
            return values_.emplace_back();
        }
        if (i < first_) {
            values_.insert(values_.begin(), static_cast<std::size_t>(first_ - i), Stored{});
            first_ = i;
        }
        const auto k = static_cast<std::size_t>(std::int32_t{i} - first_);
        if (k == values_.size()) return values_.emplace_back();
        if (k > values_.size()) values_.resize(k + 1);
        return values_[k];
    }
    // The place of the entry after the largest given, entry 1 when none
    // is: an array's entries come in order, and need no search for their place.
    Stored& next_slot() {
        if (values_.empty()) first_ = 1;
        return values_.emplace_back();
    }
    // The stored entries, from the smallest index on.
    std::span<const Stored> stored() const { return values_; }
    void clear() { values_.clear(); }
    void reserve(std::size_t n) { values_.reserve(n); }
    bool empty() const { return values_.empty(); }
    // The smallest and largest index given (1 and 0 when none is).
    std::int16_t smallest() const { return values_.empty() ? 1 : first_; }
    std::int16_t largest() const {
        return values_.empty() ? 0 : static_cast<std::int16_t>(first_ + static_cast<std::int32_t>(values_.size()) - 1);
    }

private:
    // An entry that is not the next after the largest: the first, or one
    // out of order (out of line, the next entry's path stays short).
    template <class V>
    [[gnu::noinline]] void set_apart(std::int16_t i, V&& v) {
        slot(i) = made(std::forward<V>(v));
    }
    // A flag is taken as a flag before it is stored as a byte.
    template <class V>
    static Stored made(V&& v) {
        if constexpr (std::is_same_v<T, bool>)
            return static_cast<bool>(v);
        else
            return Stored(std::forward<V>(v));
    }
    std::vector<Stored> values_;
    std::int16_t first_ = 0;
    Stored empty_{};
};

}  // namespace tamrel
