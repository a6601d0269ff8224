// The one error type of the library: number, source and description, as the
// host receives them. Every routine logs one line when an error passes
// through it and raises the very same object again (see core/routine.h).
#pragma once
#include <cstdint>
#include <exception>
#include <string>

namespace tamrel {

// Numbers above the object-error base (hexadecimal 80040000).
inline constexpr std::int32_t kObjectErrorBase = static_cast<std::int32_t>(0x80040000u);
inline constexpr std::int32_t kErrLength = kObjectErrorBase + 8301;    // CheckLength
inline constexpr std::int32_t kErrReason = kObjectErrorBase + 8302;    // DEUEV reason not in table
inline constexpr std::int32_t kErrDbksKind = kObjectErrorBase + 8303;  // DBKS for a wrong report kind
inline constexpr std::int32_t kErrAmount = kObjectErrorBase + 8304;    // amounts, DM
inline constexpr std::int32_t kErrText = kObjectErrorBase + 8305;      // text that is not UTF-8
inline constexpr std::int32_t kErrOverflow = 6;                        // runtime overflow

inline constexpr const char* kComponentName = "TamrelFile26";

// Whether `number` is one the library itself raises (docs/robustness.md).
constexpr bool is_library_error(std::int32_t number) {
    return number == kObjectErrorBase || (number >= kErrLength && number <= kErrText) || number == kErrOverflow;
}

class Error : public std::exception {
public:
    Error(std::int32_t number, std::string source, std::string description)
        : number_(number), source_(std::move(source)), description_(std::move(description)) {}

    std::int32_t number() const noexcept { return number_; }
    const std::string& source() const noexcept { return source_; }
    const std::string& description() const noexcept { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

private:
    std::int32_t number_;
    std::string source_;
    std::string description_;
};

[[noreturn]] void raise(std::int32_t number, std::string source, std::string description);

}  // namespace tamrel
