// Which blocks follow a record, decided once, while the record is written.
//
// A record announces its blocks with "J"/"N" flags. The record builder sets
// each flag through its plan (Writer::announce), so the flag in the record
// and the block appended after it come from one decision. A block that must
// be built before its flag is known (its data decide the flag) travels in
// the procedure's plan beside the flags. The builder returns the plan and
// GenData appends what it holds, in the record's order: nothing is read back
// out of the record and nothing is kept from one call to the next.
#pragma once
#include <cstdint>
#include <type_traits>

namespace tamrel {

// `Block` is an enumeration of the blocks a record may announce.
template <class Block>
requires std::is_enum_v<Block>
class BlockPlan {
public:
    constexpr void set(Block b, bool follows) { bits_ = follows ? bits_ | bit(b) : bits_ & ~bit(b); }
    constexpr bool has(Block b) const { return (bits_ & bit(b)) != 0; }
    // The block's flag as the record writes it.
    constexpr char flag(Block b) const { return has(b) ? 'J' : 'N'; }

private:
    static constexpr std::uint32_t bit(Block b) { return std::uint32_t{1} << static_cast<unsigned>(b); }
    std::uint32_t bits_ = 0;
};

}  // namespace tamrel
