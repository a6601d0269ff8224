#include "reader/field_sources.h"

#include <cstdint>

#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"

namespace tamrel::checks {
namespace {

// The stretches the descriptions leave free, where tamrel writes something
// of its own.
struct FreeStretch {
    std::string_view record;
    std::uint16_t from, to;
};
constexpr FreeStretch kFree[] = {
    // DEUEV data-record description, DSME: INTERN1 (181-183) and INTERN2
    // (191-210) are for the receiving offices' internal use; tamrel writes
    // " 5 " and zeros, other programs blanks or "1".
    {"DSME", 181, 183},
    {"DSME", 191, 210},
    // Employment certificates (DSAB, DSEU, DSNE): DSID (111-142) is the
    // sender's free text; tamrel writes version, number and blanks.
    {"DSAB", 111, 142},
    {"DSEU", 111, 142},
    {"DSNE", 111, 142},
};

}  // namespace

Content content_of(const RecordLayout& part, const FieldLayout& f) {
    for (const FreeStretch& s : kFree)
        if (part.id == s.record && f.pos >= s.from && f.pos + f.len - 1 <= s.to) return Content::Free;
    // Every description: "Reserve", in the basic setting of its kind (an:
    // blanks, n: zeros); the employment certificates' samples hold blanks
    // where tamrel's numeric reserve writes zeros.
    if (f.name == "reserve") return Content::Reserve;
    return Content::Required;
}

bool dsko_optional(std::string_view vosz_procedure) {
    // The employment certificate's files: VOSZ, the data records, NCSZ.
    return vosz_procedure == clsGenArbeitsBesch::kFrames.voszCode;
}

}  // namespace tamrel::checks
