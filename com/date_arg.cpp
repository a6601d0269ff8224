// The optional Date argument of the generators' methods.
#include <atomic>
#include <bit>
#include <cstdint>

#include "com/com_error.h"
#include "com/com_text.h"

namespace tamrel::com {
namespace {

// The last date converted. Hosts pass the same date on every call, and the
// system's conversion (a copy of the Variant, then its calendar) took a
// twentieth of a call. Calls of other apartments' threads may meet here: a
// sequence number, odd while the date is written, lets readers go without
// a lock, and a writer that finds another writing leaves the memo alone.
class DateMemo {
public:
    bool find(double key, Date& out) const {
        const unsigned s = seq_.load(std::memory_order_acquire);
        const std::uint64_t k = key_.load(std::memory_order_relaxed), v = value_.load(std::memory_order_relaxed);
        std::atomic_thread_fence(std::memory_order_acquire);
        if ((s & 1) || seq_.load(std::memory_order_relaxed) != s || k != std::bit_cast<std::uint64_t>(key))
            return false;
        out = Date{int(v >> 40),        int(v >> 32 & 0xFF), int(v >> 24 & 0xFF),
                   int(v >> 16 & 0xFF), int(v >> 8 & 0xFF),  int(v & 0xFF)};
        return true;
    }
    void keep(double key, const Date& d) {
        unsigned s = seq_.load(std::memory_order_relaxed);
        if ((s & 1) || !seq_.compare_exchange_strong(s, s + 1, std::memory_order_acquire)) return;
        key_.store(std::bit_cast<std::uint64_t>(key), std::memory_order_relaxed);
        value_.store(std::uint64_t(d.year) << 40 | std::uint64_t(d.month) << 32 | std::uint64_t(d.day) << 24 |
                         std::uint64_t(d.hour) << 16 | std::uint64_t(d.minute) << 8 | std::uint64_t(d.second),
                     std::memory_order_relaxed);
        seq_.store(s + 2, std::memory_order_release);
    }

private:
    std::atomic<unsigned> seq_{0};
    std::atomic<std::uint64_t> key_{0}, value_{0};  // 0.0, never looked up: the empty date
};
DateMemo date_memo;

}  // namespace

Date date_arg(const VARIANT& arg) {
    const VARIANT& v = deref(arg);
    if (missing(v) || V_VT(&v) == VT_EMPTY) return {};
    double date;
    if (V_VT(&v) == VT_DATE) {
        date = V_DATE(&v);
    } else {
        VARIANT d;
        VariantInit(&d);
        throw_if_failed(VariantChangeType(&d, const_cast<VARIANT*>(&v), 0, VT_DATE));
        date = V_DATE(&d);
    }
    Date out;
    if (date == 0.0 || date_memo.find(date, out)) return out;
    SYSTEMTIME t{};
    if (!VariantTimeToSystemTime(date, &t)) throw_if_failed(DISP_E_TYPEMISMATCH);
    out = Date{t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute, t.wSecond};
    date_memo.keep(date, out);
    return out;
}

}  // namespace tamrel::com
