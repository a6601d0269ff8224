#include "core/establishment_number.h"

namespace tamrel::mlGen {

std::string ConvertBNRSt(std::string_view number) {
    constexpr std::string_view kExcluded = "15000002,33333330,80000008,80000031,99999993";
    bool outside = number > std::string_view("10899999") || number < std::string_view("10600000");
    if (outside && kExcluded.find(number) == std::string_view::npos) return std::string(number);
    return {};
}

}  // namespace tamrel::mlGen
