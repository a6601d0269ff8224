// The earnings certificate generator: DSLW followed by the blocks it
// announces, in the order of their flags at positions 202-219.
#pragma once
#include <string>

#include "certificates/clsGenEntgelt/Entgelt.h"
#include "component/frame_codes.h"

namespace tamrel {

class clsGenEntgelt : public FrameGenerator {
public:
    explicit clsGenEntgelt(Host host = default_host()) : FrameGenerator(frames::kEntgelt, std::move(host)) {}

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
