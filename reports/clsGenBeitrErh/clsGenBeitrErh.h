// The contribution collection generator (record DSBE with DBMI and DBHB).
#pragma once
#include <string>
#include <string_view>

#include <array>
#include "core/generator.h"
#include "reports/clsGenBeitrErh/DSBE_layout.h"

namespace tamrel {

struct BeitrErh;

class clsGenBeitrErh : public Generator {
public:
    // The data records it writes (each with its blocks), as they are declared.
    static constexpr std::array<const RecordLayout*, 1> kRecords{&layouts::beitrerh::kDSBE};

    explicit clsGenBeitrErh(Host host = default_host()) : Generator(std::move(host)) {}

    std::string GenVOSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                        std::string_view strFirma, std::string& strDatum, const Date& datDate = {}) const;
    std::string GenDSKO(DSKOData& udtDSKOData, const Date& datDate = {}) const;
    std::string GenData(const BeitrErh& objBeitrErh, DatensatzData& udtDatensatzData, const Date& datDate = {}) const;
    std::string GenNCSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                        std::string_view strCount, const Date& datDate = {}) const;
};

}  // namespace tamrel
