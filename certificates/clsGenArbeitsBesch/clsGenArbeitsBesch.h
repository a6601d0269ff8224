// The employment certificate generator: DSAB, DSEU or DSNE by procedure,
// followed by the blocks the record announces.
#pragma once
#include <string>

#include <array>
#include "certificates/clsGenArbeitsBesch/ArbeitsBesch.h"
#include "certificates/clsGenArbeitsBesch/DSAB_layout.h"
#include "core/block_plan.h"
#include "core/generator.h"

namespace tamrel {

// The single blocks a DSAB, DSEU or DSNE record may announce (each record
// has its own selection and order; the repeating groups follow by count).
enum class ArbeitsBeschBlock { DBNA, DBAN, DBAG, DBAB, DBNE, DBSA, DBNB, DBHA, DBKE, DBKU, DBHN };

struct ArbeitsBeschPlan : BlockPlan<ArbeitsBeschBlock> {
    // Built with the record: whether they hold data decides their flags.
    std::string dbab, dbha, dbhn;
};

class clsGenArbeitsBesch : public FrameGenerator {
public:
    // The data records it writes (each with its blocks), as they are declared.
    static constexpr std::array<const RecordLayout*, 3> kRecords{&layouts::bea::kDSAB, &layouts::bea::kDSEU,
                                                                 &layouts::bea::kDSNE};

    // Procedure codes and the context texts of the frame methods.
    static constexpr FrameSpec kFrames{"AGTBA", "ALG", "clsGenEntgelt.GenVOSZ(", "clsGenErst.GenDSKO",
                                       "clsGenEntgelt.GenNCSZ("};

    explicit clsGenArbeitsBesch(Host host = default_host()) : FrameGenerator(kFrames, std::move(host)) {}

    std::string GenData(const ArbeitsBesch& objArbeitsBesch, DatensatzData& udtDatensatzData,
                        const Date& datDate = {}) const;

    // Record builders, public for the tests.
    static ArbeitsBeschPlan GenDSAB(std::string& out, const ArbeitsBesch& a, const DatensatzData& dd, const Date& date);
    static ArbeitsBeschPlan GenDSEU(std::string& out, const ArbeitsBesch& a, const DatensatzData& dd, const Date& date);
    static ArbeitsBeschPlan GenDSNE(std::string& out, const ArbeitsBesch& a, const DatensatzData& dd, const Date& date);
};

// The eighteen block builders; each appends its block and reports whether
// any field held data.
namespace bea {
bool GenDBNA(std::string& out, const ArbeitsBesch& a);
bool GenDBAN(std::string& out, const ArbeitsBesch& a);
bool GenDBAG(std::string& out, const ArbeitsBesch& a);
bool GenDBAB(std::string& out, const ArbeitsBesch& a);
bool GenDBSE(std::string& out, const DBSE& item);
bool GenDBNE(std::string& out, const ArbeitsBesch& a);
bool GenDBSA(std::string& out, const ArbeitsBesch& a);
bool GenDBSB(std::string& out, const DBSB& item);
bool GenDBAZ(std::string& out, const DBAZ& item);
bool GenDBEN(std::string& out, const DBEN& item);
bool GenDBEZ(std::string& out, const DBEZ& item);
bool GenDBEE(std::string& out, const DBEE& item);
bool GenDBFZ(std::string& out, const DBFZ& item);
bool GenDBHA(std::string& out, const ArbeitsBesch& a);
bool GenDBKE(std::string& out, const ArbeitsBesch& a);
bool GenDBKU(std::string& out, const ArbeitsBesch& a);
bool GenDBNB(std::string& out, const ArbeitsBesch& a);
bool GenDBHN(std::string& out, const ArbeitsBesch& a);
}  // namespace bea

}  // namespace tamrel
