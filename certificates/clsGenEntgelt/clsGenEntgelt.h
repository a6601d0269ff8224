// The earnings certificate generator: DSLW followed by the blocks it
// announces, in the order of their flags at positions 202-219.
#pragma once
#include <string>

#include <array>
#include "certificates/clsGenEntgelt/DSLW_layout.h"
#include "certificates/clsGenEntgelt/Entgelt.h"
#include "core/generator.h"

namespace tamrel {

// Every block of a DSLW is built with the record, as its data decide its
// flag: the plan is the text of those that follow, in the order of their flags
// (a block without data is cut back off as soon as its builder says so).
struct EntgeltPlan {
    std::string blocks;
};

class clsGenEntgelt : public FrameGenerator {
public:
    // The data records it writes (each with its blocks), as they are declared.
    static constexpr std::array<const RecordLayout*, 1> kRecords{&layouts::eel::kDSLW};

    // Procedure codes and the context texts of the frame methods.
    static constexpr FrameSpec kFrames{"AGEEL", "LEIST", "clsGenEntgelt.GenVOSZ(", "clsGenErst.GenDSKO",
                                       "clsGenEntgelt.GenNCSZ("};

    explicit clsGenEntgelt(Host host = default_host()) : FrameGenerator(kFrames, std::move(host)) {}

    std::string GenData(const Entgelt& objEntgelt, DatensatzData& udtDatensatzData, const Date& datDate = {}) const;

    static EntgeltPlan GenDSLW(std::string& out, const Entgelt& e, const DatensatzData& dd, const Date& date);

    static constexpr std::size_t kBlocks = 18;  // DBNA … DBID
};

}  // namespace tamrel
