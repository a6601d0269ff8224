// Where a field's content comes from: what the published record
// descriptions require of it, or what they leave free and tamrel fills by
// a choice of its own. The file check reads a field by its source, so that
// a file another program wrote as the descriptions allow is no error
// (docs/checks.md lists each entry with its source).
#pragma once
#include <string_view>

#include "core/layout.h"

namespace tamrel::checks {

enum class Content {
    // As declared: the description requires the field's kind or text.
    Required,
    // A reserve: blanks or zeros (the basic setting of a text or a numeric
    // field), whichever of them tamrel writes.
    Reserve,
    // Left to the sender or the receiving office: anything.
    Free,
};

// The content of field `f` of the record or block `part` (a record's own
// fields are placed by their position in the record).
Content content_of(const RecordLayout& part, const FieldLayout& f);

// Whether a file of the procedure named in its VOSZ (positions 5-9) may go
// without its DSKO.
bool dsko_optional(std::string_view vosz_procedure);

}  // namespace tamrel::checks
