// The establishment number of the tax office as the records carry it: the
// numbers of the reserved range, and a few others, are left out.
#pragma once
#include <string>
#include <string_view>

namespace tamrel::mlGen {

std::string ConvertBNRSt(std::string_view number);

}  // namespace tamrel::mlGen
