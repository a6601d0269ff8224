// The insurance-number query generator: DSVV with DBNA, DBGB and DBAN.
#pragma once
#include <string>

#include "core/generator.h"
#include "queries/clsGenAbfrVers/AbfrVers.h"

namespace tamrel {

class clsGenAbfrVers : public FrameGenerator {
public:
    // Procedure codes and the context texts of the frame methods.
    static constexpr FrameSpec kFrames{"AGTRV", "DEUEV", "clsGenAbfrVers.GenVOSZ(", "clsGenAbfrVers.GenDSKO(",
                                       "clsGenEntgelt.GenNCSZ("};

    explicit clsGenAbfrVers(Host host = default_host()) : FrameGenerator(kFrames, std::move(host)) {}

    std::string GenData(const AbfrVers& objAbfrVers, DatensatzData& udtDatensatzData, const Date& datDate = {}) const;

    static void GenDSVV(std::string& out, const AbfrVers& a, const DatensatzData& dd, const Date& date);
};

}  // namespace tamrel
