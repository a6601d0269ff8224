// The contact-person block: contact person, then the employer's names and
// address (postal code and town before street). The accident-insurance
// procedures write it as DBAP, the reimbursement as DBAA.
#pragma once
#include <string>
#include <string_view>

#include "core/block_plan.h"
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

// The accident-insurance records announce one block, DBAP, when the contact
// data hold anything: built with the record, as its data decide its flag.
enum class ContactBlock { DBAP };

struct ContactPlan : BlockPlan<ContactBlock> {
    std::string dbap;
};

// Appends what the plan names: DBAP, when it holds data.
inline void AppendPlannedBlocks(std::string& out, const ContactPlan& plan) {
    if (plan.has(ContactBlock::DBAP)) out += plan.dbap;
}

// Builds DBAP into the plan; returns whether it holds data.
inline bool BuildDBAP(ContactPlan& plan, ContactView ap, const Arbeitgeber& ag, std::string_view context) {
    bool hasData = false;
    AppendContactBlock(plan.dbap, "DBAP", ap, ag, hasData, context);
    return hasData;
}

}  // namespace tamrel
