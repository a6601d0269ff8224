// The establishment master data generator: DSBD, with DBKA when the second
// address holds data.
#pragma once
#include <string>

#include <array>
#include "core/block_plan.h"
#include "core/generator.h"
#include "queries/clsGenBetrieb/Betrieb.h"
#include "queries/clsGenBetrieb/DSBD_layout.h"

namespace tamrel {

// The block a DSBD record may announce.
enum class BetriebBlock { DBKA };

struct BetriebPlan : BlockPlan<BetriebBlock> {
    std::string dbka;  // built with the record: whether it holds data decides its flag
};

class clsGenBetrieb : public FrameGenerator {
public:
    // The data records it writes (each with its blocks), as they are declared.
    static constexpr std::array<const RecordLayout*, 1> kRecords{&layouts::betrieb::kDSBD};

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
