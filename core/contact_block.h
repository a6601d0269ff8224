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

// The contact person's five texts as the block reads them, wherever the
// data object keeps them.
struct ContactView {
    std::string_view anrede, name, tel, fax, email;
    ContactView(std::string_view a, std::string_view n, std::string_view t, std::string_view f, std::string_view e)
        : anrede(a), name(n), tel(t), fax(f), email(e) {}
    ContactView(const ContactPerson& p) : ContactView(p.ApAnrede, p.ApName, p.ApTel, p.ApFax, p.ApEmail) {}
};

// Appends the 321-character block named `id`; `hasData` is set when any
// field holds data. `context` is the calling routine's name for the log line.
void AppendContactBlock(std::string& out, std::string_view id, ContactView ap, const Arbeitgeber& ag, bool& hasData,
                        std::string_view context);

}  // namespace tamrel
