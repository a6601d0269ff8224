// The checks of the frame records and what every report shares.
#include "checks/checks.h"
#include "checks/field_checks.h"
#include "checks/rules.h"

namespace tamrel::checks {

void check_frame(std::string_view strBNRAb, std::string_view strBNREm, Findings& f) {
    const FieldChecks c(f);
    c.establishment("strBNRAb", strBNRAb);
    c.establishment("strBNREm", strBNREm);
}

}  // namespace tamrel::checks
