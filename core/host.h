// What the host may replace: the log destination, the clock, and the test
// operations of the data-object side. Each public call runs with one Host
// installed for its duration (HostScope); the routines below it reach it
// through current_host() and never keep it.
#pragma once
#include <functional>
#include <string_view>

#include "core/date.h"

namespace tamrel {

using LogSink = std::function<void(std::string_view line)>;
using Clock = std::function<Date()>;
using TextTest = std::function<bool(std::string_view)>;

// The yes/no operations that the data-object library answers: the name test
// of a DEUEV report of kind 8 and the two establishment-number tests behind
// the contribution statement's receiver check. An unset test answers false.
struct ObjectTests {
    TextTest NameTest;
    TextTest EmpfBknTest1;
    TextTest EmpfBknTest2;
};

struct Host {
    LogSink log;        // default: one line per error on standard error
    Clock now;          // default: the computer's local date and time
    ObjectTests tests;  // default: every test answers false
};

// The computer's local date and time.
Date system_now();

// The host used when a caller installs none.
const Host& default_host();

// The host of the call in progress on this thread.
const Host& current_host();

// Installs a host for the lifetime of the scope (nested scopes restore).
class HostScope {
public:
    explicit HostScope(const Host& host);
    ~HostScope();
    HostScope(const HostScope&) = delete;
    HostScope& operator=(const HostScope&) = delete;

private:
    const Host* previous_;
};

// "Now" from the current host's clock.
Date now();

}  // namespace tamrel
