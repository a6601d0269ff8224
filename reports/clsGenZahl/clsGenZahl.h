// The pay-agency report generator: DSVZ with DBZK, DBNA and, when they hold
// data, DBGA and DBAN; pseudonymised reports replace the person's identity.
#pragma once
#include <string>

#include <array>
#include "core/block_plan.h"
#include "core/generator.h"
#include "reports/clsGenZahl/DSVZ_layout.h"
#include "reports/clsGenZahl/Zahl.h"

namespace tamrel {

// The blocks a DSVZ record may announce, in the order they follow it.
enum class ZahlBlock { DBZK, DBNA, DBGA, DBAN };

struct ZahlPlan : BlockPlan<ZahlBlock> {
    std::string dbga, dban;  // built with the record: whether they hold data decides their flags
};

class clsGenZahl : public FrameGenerator {
public:
    // The data records it writes (each with its blocks), as they are declared.
    static constexpr std::array<const RecordLayout*, 1> kRecords{&layouts::zahl::kDSVZ};

    // Procedure codes and the context texts of the frame methods.
    static constexpr FrameSpec kFrames{"AGDAZ", "ZAHLS", "clsGenZahl.GenVOSZ(", "clsGenZahl.GenDSKO(",
                                       "clsGenZahl.GenNCSZ("};

    explicit clsGenZahl(Host host = default_host()) : FrameGenerator(kFrames, std::move(host)) {}

    std::string GenData(const Zahl& objZahl, DatensatzData& udtDatensatzData, const Date& datDate = {}) const;

    // Internal builders, public for the tests.
    static ZahlPlan GenDSVZ(std::string& out, const Zahl& z, const DatensatzData& dd, const Date& date);
    static void GenDBZK(std::string& out, const Zahl& z);
    static void GenDBNA(std::string& out, const Zahl& z);
    static std::string GenDBGA(const Zahl& z, bool& hasData);
    static std::string GenDBAN(const Zahl& z, bool& hasData);
};

}  // namespace tamrel
