// The report runner of one procedure: its data object read from JSON (by
// the fast scanner, or simdjson's DOM, or a parsed document) and handed to
// its generator, and its protocol line made from the same object.
#pragma once
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

#include "call/layout_rule_binding.h"
#include "call/procedure.h"
#include "call/report_runner.h"
#include "checks/checks.h"
#include "json/json_scan.h"
#include "json/json_simd.h"
#include "json/text_properties.h"
#include "protocol/clsProtoEntry.h"

namespace tamrel {

inline const json_binding::Path kRunnerArgs{nullptr, "args"};

// GenData of a class, in the form of its parameter list; `dd` is the
// record data that GenData may write to.
template <DataForm D, class Gen, class Obj>
std::string call_gen_data(Gen& g, const Obj& o, const RunnerSettings& s, DatensatzData& dd) {
    if constexpr (D == DataForm::BeitrNachw)
        return g.GenData(o, dd.strBNRAb, dd.strBNRSt, dd.strVersion, dd.strMicroseconds, s.date);
    else if constexpr (D == DataForm::WithVerfahren)
        return g.GenData(o, dd, s.verfahren, s.date);
    else
        return g.GenData(o, dd, s.date);
}

// Proto: the clsProtoEntry method of the procedure, or nullptr.
template <class Gen, class Obj, DataForm D, auto Proto>
class Runner : public ReportRunner {
public:
    Runner(const RunnerSettings& s, std::string_view objParam)
        : settings_(s),
          path_{&kRunnerArgs, objParam},
          gen_(*s.host),
          proto_entry_(*s.host),
          layout_rules_(bind_layout_rules(Gen::kRecords, obj_)) {}

    // The scanner first; a report it cannot vouch for (an error as a rule)
    // is read again through simdjson's DOM, which gives the result or the
    // error. Text with escapes (JSON written with every non-ASCII character
    // escaped, say) goes to the DOM straight away, without the cost of a
    // scan given up.
    void read_text(std::string_view text) override {
        if (text.find('\\') == std::string_view::npos) {
            line_.load(text);
            if (line_.valid_utf8()) {
                try {
                    read_scanned();
                    return;
                } catch (const json_binding::ScanMiss&) {
                } catch (const json_binding::RequestError&) {
                }
            }
        }
        read_text_reference(text);
    }
    void read_text_reference(std::string_view text) override {
        simdjson::dom::element doc;
        if (auto error = parser_.parse(text.data(), text.size()).get(doc))
            throw json_binding::RequestError(std::string("not valid JSON: ") + simdjson::error_message(error));
        read_value(json_binding::SimdValue{doc});
    }
    void read(const nlohmann::json& report) override { read_value(json_binding::NlohmannValue{report}); }
    std::string data() override {
        DatensatzData dd = settings_.datensatz;  // each report starts from the job's
        return call_gen_data<D>(gen_, obj_, settings_, dd);
    }
    void check(checks::Findings& findings) const override {
        checks::check_report(obj_, findings);
        checks::check_by_layout(layout_rules_, findings);
    }
    std::string protocol(bool error, std::string_view text) override {
        if constexpr (std::is_same_v<decltype(Proto), std::nullptr_t>)
            return {};
        else
            return (proto_entry_.*Proto)(obj_, error, text);
    }
    void clear() override {
        static const Obj empty{};
        json_binding::reset(obj_, empty);
    }
    Text find_text(const std::function<bool(std::string_view)>& test) const override {
        Text found;
        json_binding::each_text(obj_, std::string(), [&](const std::string& name, std::string_view value) {
            if (!test(value)) return false;
            found = {name, std::string(value)};
            return true;
        });
        return found;
    }

    void edit_texts(const TextEdit& edit) override { json_binding::edit_texts(obj_, nullptr, edit); }
    void* object(const std::type_info& type) override { return type == typeid(Obj) ? &obj_ : nullptr; }

private:
    // The line just loaded, valid UTF-8 without escapes.
    void read_scanned() {
        const char* at = line_.begin();
        const json_binding::ScanValue root{&at, line_.quotes()};
        read_value(root);
        if (root.peek() != '\0' || at != line_.end()) throw json_binding::ScanMiss{};
    }

    template <class V>
    void read_value(const V& v) {
        clear();
        json_binding::read(v, obj_, path_);
    }

    RunnerSettings settings_;
    json_binding::Path path_;
    json_binding::ScannedLine line_;
    simdjson::dom::parser parser_;
    Gen gen_;
    clsProtoEntry proto_entry_;
    Obj obj_;
    // Bound to obj_'s members, which stay where they are from report to report.
    std::vector<checks::LayoutRule> layout_rules_;
};

}  // namespace tamrel
