#pragma once

#include "script/compiler/Diagnostics.h"
#include "script/compiler/Spot.h"

namespace tamber {

/// Takes the faults that are found where only a spot of the source is known, and tells them with
/// the token that stands there.
class FaultReport {
public:
    /// The source must outlive the report.
    FaultReport(std::string_view source, Long version) : source_(source), version_(version) {}

    void Error(Spot spot, String text);
    void Warn(Spot spot, String text);
    /// A name of the source as messages show it.
    String Shown(std::string_view name) const { return TokenText(std::string(name), version_); }
    const Diagnostics& Found() const { return found_; }

private:
    bool IsTold(Spot spot, const String& text) const;
    std::string_view TokenAt(Spot spot) const;

    std::string_view source_;
    Long version_;
    Diagnostics found_;
};

}  // namespace tamber
