// The accident-insurance wage statement generator: DSLN with its positions,
// and DBAP when the contact data hold anything.
#pragma once
#include <string>

#include <array>
#include "core/contact_block.h"
#include "core/generator.h"
#include "queries/clsGenLohnnachweis/DSLN_layout.h"
#include "queries/clsGenLohnnachweis/Lohnnachweis.h"

namespace tamrel {

class clsGenLohnnachweis : public FrameGenerator {
public:
    // The data records it writes (each with its blocks), as they are declared.
    static constexpr std::array<const RecordLayout*, 1> kRecords{&layouts::uv::kDSLN};

    // Procedure codes and the context texts of the frame methods.
    static constexpr FrameSpec kFrames{"UNUVL", "UVELN", "clsGenLohnnachweis.GenVOSZ(", "clsGenLohnnachweis.GenDSKO(",
                                       "clsGenLohnnachweis.GenNCSZ("};

    explicit clsGenLohnnachweis(Host host = default_host()) : FrameGenerator(kFrames, std::move(host)) {}

    std::string GenData(const Lohnnachweis& objLohnnachweis, DatensatzData& udtDatensatzData,
                        const Date& datDate = {}) const;

    static ContactPlan GenDSLN(std::string& out, const Lohnnachweis& l, const DatensatzData& dd, const Date& date);
};

}  // namespace tamrel
