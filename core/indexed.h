// An indexed property of a data object: values by 16-bit index, an index
// that was not given reads as the type's empty value. Stored flat from the
// smallest index given, so a read is one bounds check.
#pragma once
#include <cstdint>
#include <type_traits>
#include <vector>

namespace tamrel {

template <class T>
class Indexed {
    // Booleans are kept as bytes (a vector of bool hands out proxies).
    using Stored = std::conditional_t<std::is_same_v<T, bool>, unsigned char, T>;
    using Read = std::conditional_t<std::is_same_v<T, bool>, bool, const T&>;

public:
    Read operator()(std::int16_t i) const {
        const std::int32_t k = std::int32_t{i} - first_;
        return k >= 0 && k < static_cast<std::int32_t>(values_.size()) ? values_[static_cast<std::size_t>(k)] : empty_;
    }
    void set(std::int16_t i, T v) {
        if (values_.empty()) {
            first_ = i;
            values_.emplace_back(Stored(std::move(v)));
            return;
        }
        if (i < first_) {
            values_.insert(values_.begin(), static_cast<std::size_t>(first_ - i), Stored{});
            first_ = i;
        }
        const auto k = static_cast<std::size_t>(std::int32_t{i} - first_);
        if (k >= values_.size()) values_.resize(k + 1);
        values_[k] = Stored(std::move(v));
    }
    void clear() { values_.clear(); }
    bool empty() const { return values_.empty(); }
    // The smallest and largest index given (1 and 0 when none is).
    std::int16_t smallest() const { return values_.empty() ? 1 : first_; }
    std::int16_t largest() const {
        return values_.empty() ? 0 : static_cast<std::int16_t>(first_ + static_cast<std::int32_t>(values_.size()) - 1);
    }

private:
    std::vector<Stored> values_;
    std::int16_t first_ = 0;
    Stored empty_{};
};

}  // namespace tamrel
