// The reimbursement generator: DSER with DBAU, DBBT or DBZU by reason, then
// DBBV, DBNA and (unless waived) DBAA.
#pragma once
#include <string>

#include "core/generator.h"
#include "reports/clsGenErst/Erst.h"

namespace tamrel {

class clsGenErst : public FrameGenerator {
public:
    // Procedure codes and the context texts of the frame methods.
    static constexpr FrameSpec kFrames{"AGAAG", "AAGER", "clsGenErst.GenVOSZ(", "clsGenErst.GenDSKO(",
                                       "clsGenErst.GenNCSZ("};

    explicit clsGenErst(Host host = default_host()) : FrameGenerator(kFrames, std::move(host)) {}

    std::string GenData(const Erst& objErst, DatensatzData& udtDatensatzData, const Date& datDate = {}) const;

    // Internal builders, public for the tests.
    static void GenDSER(std::string& out, const Erst& e, const DatensatzData& dd, const Date& date);
    static void GenDBAU(std::string& out, const Erst& e);
    static void GenDBBT(std::string& out, const Erst& e);
    static void GenDBZU(std::string& out, const Erst& e);
    static void GenDBBV(std::string& out, const Erst& e);
    static void GenDBNA(std::string& out, const Erst& e);
    static void GenDBAA(std::string& out, const Erst& e);
};

}  // namespace tamrel
