// A C++ host compiled against the data objects' type library (the header
// widl makes of it): typed vtable calls, as a compiled host makes them.
#pragma once
#include <string>

namespace client {

// Fills a TamrelObj26.Meldung and an ArbeitsBesch item through their
// interfaces and reads them back, and checks that a failure through an
// interface carries its description (IErrorInfo). Gives what was checked;
// throws std::runtime_error naming the first call that differs.
std::string check_early_bound();

}  // namespace client
