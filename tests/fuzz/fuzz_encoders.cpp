// The field encoders with arbitrary values, widths and digit counts: each
// either gives a field of exactly its width or raises an error with a
// documented number; the in-place forms agree with the returning ones.
#include <fuzzer/FuzzedDataProvider.h>

#include <memory>
#include <string>

#include "core/amounts.h"
#include "core/check_length.h"
#include "core/date_fields.h"
#include "core/error.h"
#include "core/establishment_number.h"
#include "core/host.h"
#include "core/text.h"
#include "core/text_fields.h"
#include "core/xml_encoders.h"
#include "tests/encoder_forms.h"
#include "tests/fuzz/fuzz_invariants.h"

namespace {

using namespace tamrel;

// A field encoder's result: its text, or the error it raised.
struct Outcome {
    std::string text;
    bool raised = false;
    std::int32_t number = 0;
};

template <class F>
Outcome attempt(F&& f) {
    Outcome o;
    try {
        o.text = f();
    } catch (const Error& e) {
        o.raised = true;
        o.number = e.number();
        FUZZ_REQUIRE(is_library_error(e.number()));
    }
    return o;
}

bool all_digits(std::string_view s) { return s.find_first_not_of("0123456789") == std::string_view::npos; }

void fixed_width(FuzzedDataProvider& in) {
    const bool numeric = in.ConsumeBool();
    const int width = in.ConsumeIntegralInRange<int>(-2, 600);
    const std::string value = in.ConsumeRandomLengthString(2000);
    bool filled = false, filled_put = false;
    const Outcome o =
        attempt([&] { return numeric ? mlGen::StrToN(value, width, filled) : mlGen::StrToAn(value, width, filled); });
    const std::size_t w = width < 0 ? 0 : static_cast<std::size_t>(width);
    // The fast path (behind the returning form) against the general walk.
    bool filled_general = false;
    const Outcome general = attempt([&] {
        auto buf = std::make_unique<char[]>(4 * w + mlGen::kPutSlack);
        char* end = numeric ? mlGen::detail::PutNGeneral(buf.get(), value, w, filled_general)
                            : mlGen::detail::PutAnGeneral(buf.get(), value, w, filled_general);
        return std::string(buf.get(), end);
    });
    const Outcome put = attempt([&] {
        auto buf = std::make_unique<char[]>(4 * w + mlGen::kPutSlack);
        char* end =
            numeric ? mlGen::PutN(buf.get(), value, w, filled_put) : mlGen::PutAn(buf.get(), value, w, filled_put);
        return std::string(buf.get(), end);
    });
    FUZZ_REQUIRE(o.raised == put.raised && o.text == put.text && filled == filled_put);
    FUZZ_REQUIRE(general.raised == put.raised && general.text == put.text && filled_general == filled_put);
    if (!o.raised) FUZZ_REQUIRE(text::is_valid_utf8(o.text) && text::char_count(o.text) == w);
}

void amount(FuzzedDataProvider& in) {
    const bool with_sign = in.ConsumeBool();
    const int vor = in.ConsumeIntegralInRange<int>(0, 200);
    const int nach = in.ConsumeIntegralInRange<int>(0, 200);
    const std::string value = in.ConsumeRandomLengthString(400);
    bool filled = false, filled_put = false;
    const Outcome o = attempt([&] {
        return with_sign ? mlGen::StrToBG(value, vor, nach, filled) : mlGen::StrToPB(value, vor, nach, filled);
    });
    const Outcome put = attempt([&] {
        std::string buf(static_cast<std::size_t>(vor + nach + 1) + mlGen::kPutSlack, '\0');
        char* end = mlGen::PutAmount(buf.data(), value, vor, nach, with_sign, filled_put);
        buf.resize(static_cast<std::size_t>(end - buf.data()));
        return buf;
    });
    FUZZ_REQUIRE(o.raised == put.raised && o.number == put.number && o.text == put.text && filled == filled_put);
    if (o.raised) return;
    const std::string_view digits = with_sign ? std::string_view(o.text).substr(1) : std::string_view(o.text);
    FUZZ_REQUIRE(digits.size() == static_cast<std::size_t>(vor + nach) && all_digits(digits));
    if (with_sign) FUZZ_REQUIRE(o.text[0] == '+' || o.text[0] == '-');
}

void checks(FuzzedDataProvider& in) {
    const std::string a = in.ConsumeRandomLengthString(300);
    const std::string b = in.ConsumeRandomLengthString(300);
    const int vor = in.ConsumeIntegralInRange<int>(-5, 100);
    const int nach = in.ConsumeIntegralInRange<int>(-5, 100);
    attempt([&] {
        mlGen::CheckLength(a, b, "DSME");
        return std::string();
    });
    attempt([&] {
        std::string v = a, n = b;
        mlGen::EnhanceVorNachk(v, vor, n, nach);
        return v + n;
    });
    attempt([&] { return mlGen::ConvertBNRSt(a); });
    attempt([&] { return mlGen::ReplaceSpecialCharText(a); });
    attempt([&] { return mlGen::ConvertDate(a); });
    attempt([&] { return mlGen::ConvertDateTimeToISO(a); });
    attempt([&] {
        const Date d{vor + 1990, nach % 13, vor % 32, nach % 24, vor % 60, nach % 60};
        return mlGlobal::GetCurrDate(a, in.ConsumeIntegral<int>(), d);
    });
    attempt([&] {
        bool flag = true;
        return mlGen::StrToAnXML(a, b, flag) + mlGen::StrToNXML(a, b, flag) + mlGen::StrToDateXML(a, b, flag);
    });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Host quiet = [] {
        Host h = default_host();
        h.log = [](std::string_view) {};
        return h;
    }();
    HostScope scope(quiet);
    FuzzedDataProvider in(data, size);
    switch (in.ConsumeIntegralInRange<int>(0, 2)) {
        case 0:
            fixed_width(in);
            break;
        case 1:
            amount(in);
            break;
        default:
            checks(in);
            break;
    }
    return 0;
}
