// An indexed property of a data object: values by 16-bit index, an index
// that was not given reads as the type's empty value.
#pragma once
#include <cstdint>
#include <map>

namespace tamrel {

template <class T>
class Indexed {
public:
    const T& operator()(std::int16_t i) const {
        auto it = values_.find(i);
        return it == values_.end() ? empty_ : it->second;
    }
    void set(std::int16_t i, T v) { values_[i] = std::move(v); }
    void clear() { values_.clear(); }
    bool empty() const { return values_.empty(); }
    std::int16_t smallest() const { return values_.empty() ? 1 : values_.begin()->first; }
    std::int16_t largest() const { return values_.empty() ? 0 : values_.rbegin()->first; }

private:
    std::map<std::int16_t, T> values_;
    T empty_{};
};

}  // namespace tamrel
