// The contribution statement generator (record BW02/BW03).
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include <array>
#include "core/generator.h"
#include "reports/clsGenBeitrNachw/BW02_layout.h"

namespace tamrel {

struct BeitrNachw;

// The data-object library's procedure enumeration taken by this class: the
// value 4 selects the statement of the "BWBNV" procedure, 1 makes the header
// consult the receiver check first.
enum BeitrNachwVerfahren : std::int32_t { bnNormal = 0, bnEmpfBkn = 1, bnBNV = 4 };

class clsGenBeitrNachw : public Generator {
public:
    // The data records it writes (each with its blocks), as they are declared.
    static constexpr std::array<const RecordLayout*, 2> kRecords{&layouts::beitrnachw::kBW02,
                                                                 &layouts::beitrnachw::kBW03};

    explicit clsGenBeitrNachw(Host host = default_host()) : Generator(std::move(host)) {}

    std::string GenVOSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                        std::int32_t enmVerfahren, std::string_view strFirma, std::string& strDatum,
                        const Date& datDate = {}) const;
    std::string GenDSKO(DSKOData& udtDSKOData, std::int32_t enmVerfahren, const Date& datDate = {}) const;
    std::string GenData(const BeitrNachw& objBeitrNachw, std::string_view strBNRAb, std::string_view strBNRSt,
                        std::string_view strVersion, std::string_view strMicroseconds, const Date& datDate = {}) const;
    std::string GenNCSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                        std::string_view strCount, std::int32_t enmVerfahren, const Date& datDate = {}) const;

    // True when either test of the data-object library's auxiliary object
    // answers true for the establishment number.
    bool IsEmpfBkn(std::string_view strBNR) const;
    static std::string ChangeDate(std::string_view strDate);
};

}  // namespace tamrel
