// Which field of a returned record an error block means: the error texts
// name fields by the short names of the published record descriptions
// ("VSNR", "BBNR-VU"); a short name gives a position, and the record's
// layout the field there and the property that fed it.
#pragma once
#include <span>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "core/layout.h"
#include "reader/line_walk.h"
#include "reader/returned_errors.h"

namespace tamrel::readback {

// The record's field that the error's text names, or nullptr.
const FieldLayout* named_field(const RecordLayout& record, const checks::ReturnedError& error);

// The short name of a record's field, as the error texts spell it; empty
// where none is known.
std::string_view abbreviation(const RecordLayout& record, const FieldLayout& f);

// The keys a payroll program finds a report by: insurance number, file
// reference, record reference, Laufnummer, … as the report holds them.
nlohmann::ordered_json report_keys(const std::string& report_json);

}  // namespace tamrel::readback
