#pragma once

#include <vector>

#include "platform/types.h"

namespace tamber {

/// First version in which scripts have init blocks.
inline constexpr Long InitClipVersion = 6;

/// A block between "#initclip" and "#endinitclip". Positions count from 1.
struct InitBlock {
    Long StartPos = 0;   ///< of the "#initclip"
    Long BodyPos = 0;    ///< of the first character behind the "#initclip" line
    Long EndPos = 0;     ///< of the last character of the "#endinitclip"
    Long OrderNum = -1;  ///< -1 when none is told
    String Text;         ///< the body, or why there is none
};

/// Finds the blocks of a script in their order. False when one is not complete: it is the last
/// then, and its text tells why.
bool FindInitBlocks(StringView script, std::vector<InitBlock>& blocks);

/// Cuts every block out of the script and leaves the last one in `block`. False when a block is not
/// complete: `block.Text` tells why, and the script keeps what was not read.
bool ExtractInitClip(String& script, InitBlock& block);

}  // namespace tamber
