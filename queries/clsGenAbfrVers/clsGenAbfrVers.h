// The insurance-number query generator: DSVV with DBNA, DBGB and DBAN.
#pragma once
#include <string>

#include <array>
#include "core/generator.h"
#include "queries/clsGenAbfrVers/AbfrVers.h"
#include "queries/clsGenAbfrVers/DSVV_layout.h"

namespace tamrel {

class clsGenAbfrVers : public FrameGenerator {
public:
    // The data records it writes (each with its blocks), as they are declared.
    static constexpr std::array<const RecordLayout*, 1> kRecords{&layouts::abfrvers::kDSVV};

    // Procedure codes and the context texts of the frame methods.
    static constexpr FrameSpec kFrames{"AGTRV", "DEUEV", "clsGenAbfrVers.GenVOSZ(", "clsGenAbfrVers.GenDSKO(",
                                       "clsGenEntgelt.GenNCSZ("};

    explicit clsGenAbfrVers(Host host = default_host()) : FrameGenerator(kFrames, std::move(host)) {}

    std::string GenData(const AbfrVers& objAbfrVers, DatensatzData& udtDatensatzData, const Date& datDate = {}) const;

    static void GenDSVV(std::string& out, const AbfrVers& a, const DatensatzData& dd, const Date& date);
};

}  // namespace tamrel
