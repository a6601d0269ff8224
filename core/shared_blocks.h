// The name, address and birth blocks that several procedures share.
#pragma once
#include <string>

#include "core/objects.h"

namespace tamrel::mlGen {

std::string GenDBNA(const Vorgang& vorgang, bool marker);
std::string GenDBAN(const Vorgang& vorgang, bool& filled);
std::string GenDBGB(const Vorgang& vorgang);

// The same blocks appended to a caller's buffer.
void AppendDBNA(std::string& out, const Vorgang& vorgang, bool marker);
void AppendDBAN(std::string& out, const Vorgang& vorgang, bool& filled);
void AppendDBGB(std::string& out, const Vorgang& vorgang);

}  // namespace tamrel::mlGen
