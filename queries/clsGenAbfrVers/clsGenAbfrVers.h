// The insurance-number query generator: DSVV with DBNA, DBGB and DBAN.
#pragma once
#include <string>

#include "component/frame_codes.h"
#include "queries/clsGenAbfrVers/AbfrVers.h"

namespace tamrel {

class clsGenAbfrVers : public FrameGenerator {
public:
    explicit clsGenAbfrVers(Host host = default_host()) : FrameGenerator(frames::kAbfrVers, std::move(host)) {}

    std::string GenData(const AbfrVers& objAbfrVers, DatensatzData& udtDatensatzData, const Date& datDate = {}) const;

    static void GenDSVV(std::string& out, const AbfrVers& a, const DatensatzData& dd, const Date& date);
};

}  // namespace tamrel
