// The accident-insurance master-data query generator: DSAS, with DBAP when
// the contact data hold anything.
#pragma once
#include <string>

#include "core/contact_block.h"
#include "core/generator.h"
#include "queries/clsGenAbfrStammdatenUV/AbfrStammdatenUV.h"

namespace tamrel {

class clsGenAbfrStammdatenUV : public FrameGenerator {
public:
    // Procedure codes and the context texts of the frame methods.
    static constexpr FrameSpec kFrames{"UNUVS", "UVSDD", "clsGenAbfrStammdatenUV.GenVOSZ(",
                                       "clsGenAbfrStammdatenUV.GenDSKO(", "clsGenAbfrStammdatenUV.GenNCSZ("};

    explicit clsGenAbfrStammdatenUV(Host host = default_host()) : FrameGenerator(kFrames, std::move(host)) {}

    std::string GenData(const AbfrStammdatenUV& objAbfrStammdatenUV, DatensatzData& udtDatensatzData,
                        const Date& datDate = {}) const;

    static ContactPlan GenDSAS(std::string& out, const AbfrStammdatenUV& a, const DatensatzData& dd, const Date& date);
};

}  // namespace tamrel
