// A version prefix (text, 10 characters) and a running number (numeric, 10)
// as one 20-character text: how several records and the XML report carry
// their record reference. Built on the stack, through the same encoders.
#pragma once
#include <cstdint>
#include <string_view>

#include "core/decimal.h"
#include "core/text_fields.h"

namespace tamrel {

class VersionNumber {
public:
    VersionNumber(std::string_view version, std::int64_t number) {
        bool scratch = false;
        char* p = mlGen::PutAn(buf_, version, 10, scratch);
        end_ = mlGen::PutN(p, mlGen::Decimal(number), 10, scratch);
    }
    VersionNumber(const VersionNumber&) = delete;
    VersionNumber& operator=(const VersionNumber&) = delete;

    operator std::string_view() const { return {buf_, static_cast<std::size_t>(end_ - buf_)}; }

private:
    char buf_[4 * 20 + mlGen::kPutSlack];
    char* end_;
};

}  // namespace tamrel
