// The XML report generator: header, data and trailer fragments; the host
// joins them into its document.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include <array>
#include "core/generator.h"
#include "core/layout.h"

namespace tamrel {

struct Asyl;

class clsGenAsyl : public Generator {
public:
    // The data records it writes: none of fixed width (the report is XML).
    static constexpr std::array<const RecordLayout*, 0> kRecords{};

    explicit clsGenAsyl(Host host = default_host()) : Generator(std::move(host)) {}

    std::string GenVOSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                        std::string_view strFirma, std::int32_t enmVerfahren, std::string& strDatum,
                        const Date& datDate = {}) const;
    std::string GenData(const Asyl& objAsyl, DatensatzData& udtDatensatzData, const Date& datDate = {}) const;
    std::string GenNCSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                        std::string_view strCount, const Date& datDate = {}) const;

    // The digits of the institution code `ikko`.
    static constexpr std::size_t kIkkoDigits = 9;
};

}  // namespace tamrel
