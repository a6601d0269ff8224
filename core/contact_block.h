// The contact-person block: contact person, then the employer's names and
// address (postal code and town before street). The accident-insurance
// procedures write it as DBAP, the reimbursement as DBAA.
#pragma once
#include <string>
#include <string_view>

#include "core/objects.h"

namespace tamrel {

struct ContactPerson {
    std::string ApAnrede, ApName, ApTel, ApFax, ApEmail;
};

// Appends the 321-character block named `id`; `hasData` is set when any
// field holds data. `context` is the calling routine's name for the log line.
void AppendContactBlock(std::string& out, std::string_view id, const ContactPerson& ap, const Arbeitgeber& ag,
                        bool& hasData, std::string_view context);

}  // namespace tamrel
