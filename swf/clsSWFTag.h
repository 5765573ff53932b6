#pragma once

#include <memory>

#include "platform/types.h"

namespace tamber {

/// A tag, or a part of one, that writes itself into the stream.
class clsSWFTag {
public:
    virtual ~clsSWFTag() = default;
    virtual void Save() = 0;
    /// Code of the tag in the file.
    virtual Long TagNum() const = 0;
    /// Counts a placement. False for a tag that does not ask whether it is placed.
    virtual bool IncPlaceCnt() { return false; }
};
using SWFTagReference = std::shared_ptr<clsSWFTag>;

}  // namespace tamber
