// The reimbursement generator: DSER with DBAU, DBBT or DBZU by reason, then
// DBBV, DBNA and (unless waived) DBAA.
#pragma once
#include <string>

#include <array>
#include "core/block_plan.h"
#include "core/generator.h"
#include "reports/clsGenErst/DSER_layout.h"
#include "reports/clsGenErst/Erst.h"

namespace tamrel {

// The blocks a DSER record may announce, in the order they follow it.
enum class ErstBlock { DBAU, DBBT, DBZU, DBBV, DBNA, DBAA };
using ErstPlan = BlockPlan<ErstBlock>;

class clsGenErst : public FrameGenerator {
public:
    // The data records it writes (each with its blocks), as they are declared.
    static constexpr std::array<const RecordLayout*, 1> kRecords{&layouts::erst::kDSER};

    // Procedure codes and the context texts of the frame methods.
    static constexpr FrameSpec kFrames{"AGAAG", "AAGER", "clsGenErst.GenVOSZ(", "clsGenErst.GenDSKO(",
                                       "clsGenErst.GenNCSZ("};

    explicit clsGenErst(Host host = default_host()) : FrameGenerator(kFrames, std::move(host)) {}

    std::string GenData(const Erst& objErst, DatensatzData& udtDatensatzData, const Date& datDate = {}) const;

    // Internal builders, public for the tests.
    static ErstPlan GenDSER(std::string& out, const Erst& e, const DatensatzData& dd, const Date& date);
    static void GenDBAU(std::string& out, const Erst& e);
    static void GenDBBT(std::string& out, const Erst& e);
    static void GenDBZU(std::string& out, const Erst& e);
    static void GenDBBV(std::string& out, const Erst& e);
    static void GenDBNA(std::string& out, const Erst& e);
    static void GenDBAA(std::string& out, const Erst& e);
};

}  // namespace tamrel
