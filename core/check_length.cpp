#include "core/check_length.h"

#include <charconv>
#include <string>

#include "core/error.h"
#include "core/routine.h"
#include "core/text.h"

namespace tamrel::mlGen {
namespace {
constexpr std::string_view kCheckLength = "mlGen.CheckLength";
}  // namespace

void CheckLength(std::string_view record, int length, std::string_view name) {
    if (text::char_count(record) == static_cast<std::size_t>(length)) return;
    routine(kCheckLength, [&](int& line) {
        line = 1;
        raise(kErrLength, std::string(kCheckLength), "L\xC3\xA4nge " + std::string(name) + " ist nicht korrekt.");
    });
}

void CheckLength(std::string_view record, std::string_view length, std::string_view name) {
    int required = 0;
    auto r = std::from_chars(length.data(), length.data() + length.size(), required);
    if (r.ec != std::errc() || r.ptr != length.data() + length.size()) required = -1;
    CheckLength(record, required, name);
}

}  // namespace tamrel::mlGen
