// The earnings certificate generator: DSLW followed by the blocks it
// announces, in the order of their flags at positions 202-219.
#pragma once
#include <string>

#include "certificates/clsGenEntgelt/Entgelt.h"
#include "core/generator.h"

namespace tamrel {

class clsGenEntgelt : public FrameGenerator {
public:
    // Procedure codes and the context texts of the frame methods.
    static constexpr FrameSpec kFrames{"AGEEL", "LEIST", "clsGenEntgelt.GenVOSZ(", "clsGenErst.GenDSKO",
                                       "clsGenEntgelt.GenNCSZ("};

    explicit clsGenEntgelt(Host host = default_host()) : FrameGenerator(kFrames, std::move(host)) {}

    std::string GenData(const Entgelt& objEntgelt, DatensatzData& udtDatensatzData, const Date& datDate = {});

    void GenDSLW(std::string& out, const Entgelt& e, const DatensatzData& dd, const Date& date);

    static constexpr std::size_t kBlocks = 18;  // DBNA … DBID

private:
    // The blocks that hold data, in the order of their flags, as the most
    // recent GenDSLW built them (one string: a block without data is cut
    // back off as soon as its builder says so).
    std::string blocks_;
};

}  // namespace tamrel
