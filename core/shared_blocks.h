// The name, address and birth blocks that several procedures share.
#pragma once
#include <string>
#include <string_view>

#include "core/objects.h"

namespace tamrel::mlGen {

std::string GenDBNA(const Vorgang& vorgang, bool marker);
std::string GenDBAN(const Vorgang& vorgang, bool& filled);

// The five name texts of DBNA, as the block reads them.
struct NameView {
    std::string_view familienname, vorname, vorsatzwort, namenszusatz, titel;
    explicit NameView(const Vorgang& v)
        : familienname(v.Familienname),
          vorname(v.Vorname),
          vorsatzwort(v.Vorsatzwort),
          namenszusatz(v.Namenszusatz),
          titel(v.Titel) {}
};

// The layouts behind the shared blocks: the marker character of DBNA and
// whether DBAN writes the country "D" (the shared DBAN leaves it blank).
void AppendNameBlock(std::string& out, NameView names, std::string_view marker, std::string_view context);
void AppendAddressBlock(std::string& out, const Vorgang& vorgang, bool blank_d, bool& filled, std::string_view context);

// The same blocks appended to a caller's buffer.
void AppendDBNA(std::string& out, const Vorgang& vorgang, bool marker);
void AppendDBAN(std::string& out, const Vorgang& vorgang, bool& filled);
void AppendDBGB(std::string& out, const Vorgang& vorgang);

}  // namespace tamrel::mlGen
