// The XML report read back into its job: the header's values, one report
// per data element (each proven by building it again, as the fixed-width
// reader proves its records), the trailer left to its count.
#pragma once
#include <functional>
#include <istream>
#include <string>

#include "readback/transfer_reading.h"

namespace tamrel::readback {

// Reads the document from `in`; the encoding is the declaration's unless
// `options` gives one. Whitespace between elements is not part of a record.
ReadResult read_xml_report(std::istream& in, const ReadOptions& options,
                           const std::function<void(const std::string& report)>& report);

}  // namespace tamrel::readback
