// The check that closes every record and block: its length in characters
// against the layout's total, reported under the record's name.
#pragma once
#include <string_view>

namespace tamrel::mlGen {

void CheckLength(std::string_view record, int length, std::string_view name);
void CheckLength(std::string_view record, std::string_view length, std::string_view name);

}  // namespace tamrel::mlGen
