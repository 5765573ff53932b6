#pragma once

#include <string_view>
#include <vector>

#include "script/compiler/Diagnostic.h"
#include "script/compiler/Spot.h"

namespace tamber {

/// The messages of one run.
class Diagnostics {
public:
    /// Errors and warnings behind these are counted but not kept.
    static constexpr std::size_t MaxErrors = 20;
    static constexpr std::size_t MaxWarnings = 50;

    void Error(Spot spot, std::string_view token, String text, Long openLine = 0);
    void Warn(Spot spot, std::string_view token, String text);
    bool HasErrors() const { return !errors_.empty(); }
    bool IsFull() const { return errors_.size() >= MaxErrors; }
    const std::vector<Diagnostic>& Errors() const { return errors_; }
    const std::vector<Diagnostic>& Warnings() const { return warnings_; }
    /// Adds what another has found, and puts all in the order of the lines.
    void Merge(const Diagnostics& other);

private:
    std::vector<Diagnostic> errors_;
    std::vector<Diagnostic> warnings_;
};

/// A token of the source as a message shows it: one line, not too long, without single quotes,
/// which enclose a token.
String TokenText(const std::string& token, Long version);

/// What a diagnostic says, and, in a list of several, with its line and token before it.
String DiagnosticMessage(const Diagnostic& diagnostic);
String DiagnosticLine(const Diagnostic& diagnostic, Long version);

/// The text of a failed run, in code page 932, lines ended by LF: "Error: " and the first error's
/// text, a line for each further error, "Line N: 'token'" for the first, then, when there are
/// warnings, "Warning: " and the first, and a line for each other.
std::string DiagnosticText(const std::vector<Diagnostic>& errors,
                           const std::vector<Diagnostic>& warnings, Long version);

}  // namespace tamber
