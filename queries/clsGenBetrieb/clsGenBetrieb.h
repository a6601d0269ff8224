// The establishment master data generator: DSBD, with DBKA when the second
// address holds data.
#pragma once
#include <string>

#include "core/block_plan.h"
#include "core/generator.h"
#include "queries/clsGenBetrieb/Betrieb.h"

namespace tamrel {

// The block a DSBD record may announce.
enum class BetriebBlock { DBKA };

struct BetriebPlan : BlockPlan<BetriebBlock> {
    std::string dbka;  // built with the record: whether it holds data decides its flag
};

class clsGenBetrieb : public FrameGenerator {
public:
    // Procedure codes and the context texts of the frame methods.
    static constexpr FrameSpec kFrames{"AGDEU", "DEUEV", "clsGenBetrieb.GenVOSZ(", "clsGenBetrieb.GenDSKO(",
                                       "clsGenBetrieb.GenNCSZ("};

    explicit clsGenBetrieb(Host host = default_host()) : FrameGenerator(kFrames, std::move(host)) {}

    std::string GenData(const Betrieb& objBetrieb, DatensatzData& udtDatensatzData, const Date& datDate = {}) const;

    // Internal builders, public for the tests.
    static BetriebPlan GenDSBD(std::string& out, const Betrieb& b, const DatensatzData& dd, const Date& date);
    static std::string GenDBKA(const Betrieb& b, bool& filled);
};

}  // namespace tamrel
