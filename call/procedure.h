// Everything the call protocol, the report runner and the command line know
// of one procedure, written once in its descriptor: the class, the name of
// its data object's parameter, the form of its frame methods and of its
// GenData, its protocol method, and the typed calls made from these.
#pragma once
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/date.h"
#include "core/host.h"
#include "core/layout.h"
#include "core/objects.h"

namespace tamrel {

class Invocation;
class ReportRunner;
struct RunnerSettings;
struct PropertyRow;

// The parameter lists of the frame methods, one per family of classes.
enum class FrameForm {
    Common,      // GenVOSZ(…, strFirma, enmVerfahren, …), GenDSKO(udtDSKOData, …), GenNCSZ(…, strCount, …)
    Meldung,     // as Common, and GenNCSZ takes enmVerfahren after strCount
    BeitrErh,    // GenVOSZ without enmVerfahren
    BeitrNachw,  // enmVerfahren (an integer) before strFirma, after udtDSKOData and after strCount
    Xml,         // as Common, without GenDSKO
};

// The parameter lists of GenData.
enum class DataForm {
    Common,         // GenData(obj, udtDatensatzData, datDate)
    WithVerfahren,  // GenData(obj, udtDatensatzData, enmVerfahren, datDate)
    BeitrNachw,     // GenData(obj, strBNRAb, strBNRSt, strVersion, strMicroseconds, datDate)
};

// The frame arguments of one transfer file. GenVOSZ hands the date it used
// back in strDatum.
struct FrameValues {
    std::string strBNRAb, strBNREm, strFileNr, strFirma, strDatum;
    std::int32_t enmVerfahren = 0;
    Date datDate;
    DSKOData udtDSKOData;
};

struct ProcedureDescriptor {
    std::string_view cls;
    std::string_view objParam;     // the data object's parameter name
    std::string_view protoMethod;  // the clsProtoEntry method; empty when there is none
    FrameForm frames;
    DataForm data;
    std::span<const RecordLayout* const> records;  // the class's data records (`kRecords`)
    // The property whose value decides which blocks a report has, and its
    // values (a class with a block table); empty for the others.
    std::string_view reasonProperty = {};
    std::vector<std::string> (*reasons)() = nullptr;

    // The frame records, by typed call.
    std::string (*GenVOSZ)(const Host&, FrameValues&) = nullptr;
    std::string (*GenDSKO)(const Host&, FrameValues&) = nullptr;  // nullptr for the XML report
    std::string (*GenNCSZ)(const Host&, const FrameValues&, std::string_view strCount) = nullptr;
    // GenData and the protocol method, as the call protocol invokes them.
    std::string (*GenData)(const ProcedureDescriptor&, Invocation&) = nullptr;
    std::string (*CreateProto)(const ProcedureDescriptor&, Invocation&) = nullptr;  // nullptr without protoMethod
    // The checks of the data object, as the call protocol's method "Check".
    std::string (*Check)(const ProcedureDescriptor&, Invocation&) = nullptr;
    // Every property of the data object, for the reference documentation.
    std::vector<PropertyRow> (*Properties)() = nullptr;
    // The runner that turns report after report into its record.
    std::unique_ptr<ReportRunner> (*runner)(const ProcedureDescriptor&, const RunnerSettings&) = nullptr;

    bool xml() const { return frames == FrameForm::Xml; }
    // Whether the procedure's enmVerfahren is read as an integer only, not as
    // a VerfMerkmal ("vmNormal", …).
    bool integer_verfahren() const { return frames == FrameForm::BeitrNachw; }
};

// Every creatable generator class, in the order of the class list.
std::span<const ProcedureDescriptor> procedures();
// The descriptor of a generator class; nullptr for an unknown class.
const ProcedureDescriptor* find_procedure(std::string_view cls);

}  // namespace tamrel
