#include "reader/line_walk.h"

namespace tamrel::checks {

std::string part_label(const Part& p) {
    if (p.entry) return std::string(p.layout->id) + " " + std::to_string(p.entry);
    if (!p.block) return {};
    return std::string(p.layout->id) + (p.item > 1 ? " " + std::to_string(p.item) : std::string());
}

}  // namespace tamrel::checks
