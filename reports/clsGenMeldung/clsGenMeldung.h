// The DEUEV report generator: DSME records with the blocks that the report
// reason calls for, and the frame records of a DEUEV transfer file.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include <array>
#include "core/block_plan.h"
#include "core/generator.h"
#include "reports/clsGenMeldung/DSME_layout.h"
#include "reports/clsGenMeldung/Meldung.h"

namespace tamrel {

// The blocks a DSME record may announce, in the order they follow it.
enum class MeldungBlock { DBME, DBNA, DBGB, DBAN, DBEU, DBUV, DBKS, DBSO, DBKV };

struct MeldungPlan : BlockPlan<MeldungBlock> {
    std::string dbuv;  // built with the record: whether it holds data decides its flag
};

class clsGenMeldung : public Generator {
public:
    // The data records it writes (each with its blocks), as they are declared.
    static constexpr std::array<const RecordLayout*, 1> kRecords{&layouts::meldung::kDSME};

    explicit clsGenMeldung(Host host = default_host()) : Generator(std::move(host)) {}

    std::string GenVOSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                        std::string_view strFirma, std::int32_t enmVerfahren, std::string& strDatum,
                        const Date& datDate = {}) const;
    std::string GenDSKO(DSKOData& udtDSKOData, const Date& datDate = {}) const;
    std::string GenData(const Meldung& objMeldung, DatensatzData& udtDatensatzData, std::int32_t enmVerfahren,
                        const Date& datDate = {}) const;
    std::string GenNCSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                        std::string_view strCount, std::int32_t enmVerfahren, const Date& datDate = {}) const;

    // The block-selection table: reason, then seven J/N flags, 35 entries.
    // The reason is the property `kReasonProperty`: which blocks, and so
    // which properties, a report needs depends on it.
    static constexpr std::string_view kReasonProperty = "Meldegrund";
    static constexpr std::size_t kBlockTableEntry = 2 + 7;
    static constexpr std::string_view kBlockTable =
        "10JJJJNNJ11JJJJNNJ12JJJJNNJ13JJJJNNJ20NJNNNNN30JNNNNNJ31JNNNNNJ32JNNNNNJ33JNNNNNJ34JNNNNNJ35JNNNNNJ36JNNNNNJ"
        "40JJNJNNJ49JNNNNNJ50JNNNNNJ51JNNNNNJ52JNNNNNJ53JNNNNNJ54JNNNNNJ55JNNNNNJ56JNNNNNJ57JNNNNNJ58NJNNNNN59JNNNNNJ"
        "60NJNNNNN61NNNJNNN62NNNNNNN63NNNNNNN70JNNNNNJ71JNNNNNJ72JNNNNNJ89NNNNNNN90NNNNNNN91JNNNNNJ92JNNNNJN";

    // Internal builders, public for the tests and benchmarks.
    MeldungPlan GenDSME(std::string& out, const Meldung& m, const DatensatzData& dd, std::int32_t enmVerfahren,
                        const Date& datDate) const;
    bool IsGeringBkn(const Meldung& m) const;
    // The person groups of marginal employment, whose registration has no DBKS.
    static constexpr bool MarginalGroup(std::string_view group) {
        return group == "109" || group == "110" || group == "190";
    }
    static void GenDBME(std::string& out, const Meldung& m);
    static void GenDBEU(std::string& out, const Meldung& m);
    static void AppendDBUV(std::string& out, const Meldung& m, bool& produced);
    static void GenDBKS(std::string& out, const Meldung& m);
    static void GenDBSO(std::string& out, const Meldung& m);
    static void GenDBKV(std::string& out, const Meldung& m);
};

}  // namespace tamrel
