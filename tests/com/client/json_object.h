// A host's data object made from a report's JSON, read by the server through
// IDispatch as it reads any automation object: each key a property (any
// case), nested objects as sub-objects, arrays and index maps as indexed
// properties, a property absent from the JSON as Empty. What the JSON
// reader derives when left out (the bounds of an indexed property, the
// count of a repeating group) is derived here the same way. A value
// {"$raise": [number, source, description]} raises that error when read.
#pragma once
#include <nlohmann/json.hpp>

#include <unordered_map>
#include <vector>

#include "automation_object.h"

namespace client {

using nlohmann::json;

class JsonObject : public AutomationObject {
public:
    explicit JsonObject(const json& value);  // `value` outlives the object
    // The same as an object of the host's class `cls` (with type
    // information), its sub-objects and items of classes named after it.
    JsonObject(const json& value, std::string cls);

protected:
    DISPID id_of(std::string_view name) override;
    HRESULT answer(DISPID id, const DISPPARAMS& params, VARIANT& result, EXCEPINFO* error) override;

private:
    // One property as asked, with what its reads can keep: a property is
    // read once per report, and a data object is often read again.
    struct Slot {
        std::string name;
        const json* value;  // nullptr: absent from the JSON
        bool has_derived = false;
        long derived = 0;            // its value when absent (bounds, counts)
        std::wstring text;           // a text value, in UTF-16
        IDispatch* child = nullptr;  // a sub-object, made at its first read
    };
    // Names in any case, found without a copy.
    struct NameHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const;
    };
    struct NameEqual {
        using is_transparent = void;
        bool operator()(std::string_view a, std::string_view b) const { return same_name(a, b); }
    };
    ~JsonObject() override;
    const json* member(std::string_view name) const;
    void init_keys();                   // a slot for each key, in the JSON's order
    DISPID add(std::string_view name);  // a new slot, its id
    void catch_up();                    // slots for the names its class knows
    bool derived(std::string_view name, long& out) const;
    HRESULT whole(Slot& slot, VARIANT& result);
    std::vector<Slot> slots_;  // by DISPID - 1
    std::unordered_map<std::string, DISPID, NameHash, NameEqual> ids_;
    const json& value_;
    std::string class_name_;                     // empty: no class
    std::vector<std::string>* names_ = nullptr;  // the class's names in the order of their ids
};

// The host program's test object: NameTest, EmpfBknTest1 and EmpfBknTest2
// answer true for the texts listed under their names (the job's "tests").
class TestAnswers : public AutomationObject {
public:
    explicit TestAnswers(const json& tests) : tests_(tests) {}

protected:
    DISPID id_of(std::string_view name) override;
    HRESULT answer(DISPID id, const DISPPARAMS& params, VARIANT& result, EXCEPINFO* error) override;

private:
    const json& tests_;
};

// Registers TestAnswers under the ProgID the server asks for, for the life
// of this object; without tests, makes sure none is registered.
class TestAnswersRegistration {
public:
    explicit TestAnswersRegistration(const json& tests);
    ~TestAnswersRegistration();
    TestAnswersRegistration(const TestAnswersRegistration&) = delete;
    TestAnswersRegistration& operator=(const TestAnswersRegistration&) = delete;

private:
    DWORD cookie_ = 0;
};

}  // namespace client
