// The accident-insurance master-data query generator: DSAS, with DBAP when
// the contact data hold anything.
#pragma once
#include <string>

#include <array>
#include "core/contact_block.h"
#include "core/generator.h"
#include "queries/clsGenAbfrStammdatenUV/AbfrStammdatenUV.h"
#include "queries/clsGenAbfrStammdatenUV/DSAS_layout.h"

namespace tamrel {

class clsGenAbfrStammdatenUV : public FrameGenerator {
public:
    // The data records it writes (each with its blocks), as they are declared.
    static constexpr std::array<const RecordLayout*, 1> kRecords{&layouts::uv::kDSAS};

    // Procedure codes and the context texts of the frame methods.
    static constexpr FrameSpec kFrames{"UNUVS", "UVSDD", "clsGenAbfrStammdatenUV.GenVOSZ(",
                                       "clsGenAbfrStammdatenUV.GenDSKO(", "clsGenAbfrStammdatenUV.GenNCSZ("};

    explicit clsGenAbfrStammdatenUV(Host host = default_host()) : FrameGenerator(kFrames, std::move(host)) {}

    std::string GenData(const AbfrStammdatenUV& objAbfrStammdatenUV, DatensatzData& udtDatensatzData,
                        const Date& datDate = {}) const;

    static ContactPlan GenDSAS(std::string& out, const AbfrStammdatenUV& a, const DatensatzData& dd, const Date& date);
};

}  // namespace tamrel
