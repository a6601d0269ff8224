// What every generator class shares: the host it was created with (log sink,
// clock, data-object tests), installed for the duration of each public call,
// and the frame wrappers of the classes whose frame methods take the common
// parameter lists.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "core/date.h"
#include "core/date_fields.h"
#include "core/host.h"
#include "core/objects.h"
#include "core/routine.h"

namespace tamrel {

class Generator {
public:
    explicit Generator(Host host = default_host()) : host_(std::move(host)) {}
    const Host& host() const { return host_; }

protected:
    // Runs a public method: this generator's host installed, the routine's
    // error convention around the body.
    template <class Ctx, class Body>
    decltype(auto) call(const Ctx& context, Body&& body) const {
        HostScope scope(host_);
        return routine(context, std::forward<Body>(body));
    }

private:
    Host host_;
};

// Procedure codes and the context texts of a class's frame wrappers (some
// carry another class's name; they are kept as they are).
struct FrameSpec {
    std::string_view voszCode;
    std::string_view dskoCode;
    std::string_view voszContext;  // ends with "("
    std::string_view dskoContext;  // ends with "(" unless another class's fixed text
    std::string_view ncszContext;  // ends with "("
};

// The frame methods of the classes of group A (and the DEUEV query and
// master-data classes): GenVOSZ with enmVerfahren (ignored), GenDSKO, GenNCSZ.
class FrameGenerator : public Generator {
public:
    std::string GenVOSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                        std::string_view strFirma, std::int32_t enmVerfahren, std::string& strDatum,
                        const Date& datDate = {}) const;
    std::string GenVOSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                        std::string_view strFirma, std::int32_t enmVerfahren) const;
    std::string GenDSKO(DSKOData& udtDSKOData, const Date& datDate = {}) const;
    std::string GenNCSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                        std::string_view strCount, const Date& datDate = {}) const;

protected:
    FrameGenerator(const FrameSpec& spec, Host host) : Generator(std::move(host)), spec_(spec) {}

private:
    FrameSpec spec_;
};

// The shape of a GenData: the date resolved (statement 1), the record built
// into a fresh buffer (statement 2), the blocks appended to it (statement 3).
// `build` returns the record's block plan, which `blocks` is handed; a record
// whose blocks always follow has no plan.
// The room a record with many optional blocks is given first (the
// certificates): a capacity guess, not a length of the layouts.
inline constexpr std::size_t kManyBlocksRoom = 2048;

template <class Build, class Blocks>
std::string record_then_blocks(int& line, const Date& datDate, std::size_t reserve, Build&& build, Blocks&& blocks) {
    line = 1;
    const Date date = mlGen::GetDate(datDate);
    std::string out;
    out.reserve(reserve);
    line = 2;
    if constexpr (std::is_void_v<std::invoke_result_t<Build&, std::string&, const Date&>>) {
        build(out, date);
        line = 3;
        blocks(out);
    } else {
        const auto plan = build(out, date);
        line = 3;
        blocks(out, plan);
    }
    return out;
}

}  // namespace tamrel
