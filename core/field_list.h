// Data-object groups whose members are all texts are declared once as a
// list macro, FIELDS(X) with X(Member) per field, from which both the struct
// members and the JSON table are generated, so the two never drift apart.
#pragma once
#include <string>

#define TAMREL_TEXT_MEMBER(name) std::string name;
