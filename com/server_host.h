// What the server's host supplies to the record library: the log file, the
// clock, and the data-object tests, which a host program answers with an
// automation object of its own (docs/com.md).
#pragma once
#include "core/host.h"

namespace tamrel::com {

// The ProgID under which a host program registers the object that answers
// the data-object tests: methods NameTest(Text), EmpfBknTest1(BNR) and
// EmpfBknTest2(BNR), each returning a Boolean. Without it every test
// answers false.
inline constexpr wchar_t kObjectTestsProgId[] = L"TamrelFile26.ObjectTests";

// The host of every generator object: log lines appended to the log file
// (TAMREL_LOG, else %TEMP%\TamrelFile26.log), the computer's clock unless
// TAMREL_NOW fixes it, each test asked of a test object made for the
// question.
const Host& server_host();

// The same host, but the establishment-number tests ask one test object
// made now and kept with the host: the contribution statement's auxiliary
// object, which lives as long as its generator.
Host host_with_kept_tests();

}  // namespace tamrel::com
