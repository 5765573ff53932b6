#pragma once

#include "platform/types.h"
#include "script/compiler/ActionCompiler.h"

namespace tamber {

/// A script's bytes as the compiler takes them: lines end with LF, in UTF-8 from version 6 on where
/// allowed, else in the code page.
Bytes CompilerSource(StringView text, Long version, bool unicodeAllowed);

/// Compiles scripts for a movie of a version. The last one that failed is remembered, so that
/// telling its fault does not compile it again.
class ScriptCompiler {
public:
    explicit ScriptCompiler(Long version) : version_(version) {}

    Long Version() const { return version_; }
    /// Lines and offsets of the diagnostics are those of the compiler's source of this text. Valid
    /// until the next call.
    const CompiledScript& Compile(StringView text);

private:
    Long version_;
    String failedText_;
    CompiledScript last_;
};

/// Where a diagnostic's token begins in the text that was compiled, in UTF-16 units from 0.
Long OffsetOf(const Diagnostic& diagnostic, StringView text, Long version);

}  // namespace tamber
