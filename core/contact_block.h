// DBAP, the contact-person block of the accident-insurance procedures
// (master-data query and wage statement share it unchanged).
#pragma once
#include <string>
#include <string_view>

#include "core/objects.h"

namespace tamrel {

struct ContactPerson {
    std::string ApAnrede, ApName, ApTel, ApFax, ApEmail;
};

// Appends DBAP (321 characters); `hasData` is set when any field holds data.
// `context` is the calling class's routine name for the log line.
void AppendDBAP(std::string& out, const ContactPerson& ap, const Arbeitgeber& ag, bool& hasData,
                std::string_view context);

}  // namespace tamrel
