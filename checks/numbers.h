// The identification numbers of the reports and their check digits: the
// insurance number (Versicherungsnummer) and the establishment number
// (Betriebsnummer). Each returns the rule the number breaks, or nullptr.
#pragma once
#include <string_view>

#include "checks/finding.h"

namespace tamrel::checks {

// 12 characters: area number (02-89), birth date DDMMYY, the initial of the
// birth name, a two-digit serial number, the check digit.
const Rule* versicherungsnummer_fault(std::string_view vsnr);

// 8 digits, the last the check digit of the first seven (or that digit
// plus 5, modulo 10).
const Rule* betriebsnummer_fault(std::string_view bnr);

// The check digits themselves, for numbers of the right form.
int versicherungsnummer_check_digit(std::string_view vsnr);
int betriebsnummer_check_digit(std::string_view bnr);

}  // namespace tamrel::checks
