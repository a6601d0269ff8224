// Generates the reports of one transfer file without the call protocol in
// between: each report is read from its JSON into the class's data object
// and handed to the generator directly, and its protocol line (where the
// procedure has one) is made from the same object.
#pragma once
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>

#include <nlohmann/json.hpp>

#include "checks/finding.h"
#include "core/date.h"
#include "core/host.h"
#include "core/objects.h"

namespace tamrel {
namespace json_binding {
struct TextPlace;
}

class ReportRunner {
public:
    virtual ~ReportRunner() = default;
    // Reads one report (a JSON object): from JSON text, or from a parsed
    // document. Throws json_binding::RequestError naming the property.
    virtual void read_text(std::string_view json_text) = 0;
    virtual void read(const nlohmann::json& report) = 0;
    // Reads JSON text through simdjson's DOM alone: the reference that
    // read_text's fast scanner is held to (by the tests and the fuzzer).
    virtual void read_text_reference(std::string_view json_text) = 0;
    // The record of the report last read, with its blocks. Throws Error.
    virtual std::string data() = 0;
    // What the checks find in the report last read (checks/checks.h).
    virtual void check(checks::Findings& findings) const = 0;
    // Its protocol line. Throws Error.
    virtual std::string protocol(bool error, std::string_view text) = 0;
    // Empties the data object: the protocol line of a report that could not
    // be read is made from the empty object.
    virtual void clear() = 0;
    // The first text property of the report last read for which `test` is
    // true, as {name, value} ("Vorgang.Vorname"); empty names when none is.
    struct Text {
        std::string name, value;
    };
    virtual Text find_text(const std::function<bool(std::string_view)>& test) const = 0;
    // Calls `edit` with every text property of the report last read that
    // holds anything but printable ASCII, and where it is.
    using TextEdit = std::function<void(std::string& value, const json_binding::TextPlace& at)>;
    virtual void edit_texts(const TextEdit& edit) = 0;
    // The data object that data() builds from, where it is a `type`;
    // nullptr otherwise (object_as below).
    virtual void* object(const std::type_info& type) = 0;
};

// The runner's data object as an `Obj`, to be filled in place of reading
// JSON; nullptr where the runner's class has another data object.
template <class Obj>
Obj* object_as(ReportRunner& runner) {
    return static_cast<Obj*>(runner.object(typeid(Obj)));
}

struct RunnerSettings {
    const Host* host;
    DatensatzData datensatz;  // for the contribution statement: strBNRAb, strBNRSt, strVersion, strMicroseconds
    std::int32_t verfahren = 0;
    Date date;
};

// The runner of a generator class; nullptr for an unknown class.
std::unique_ptr<ReportRunner> make_runner(std::string_view cls, const RunnerSettings& settings);

}  // namespace tamrel
