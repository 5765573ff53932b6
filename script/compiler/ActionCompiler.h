#pragma once

#include <string_view>
#include <vector>

#include "script/compiler/Diagnostic.h"

namespace tamber {

/// What a run of the compiler gave.
struct CompiledScript {
    /// Action records without the zero that ends a list; empty after an error.
    Bytes Actions;
    std::vector<Diagnostic> Errors;
    std::vector<Diagnostic> Warnings;

    bool IsCompiled() const { return Errors.empty(); }
};

/// The compiler of ActionScript.
class ActionCompiler {
public:
    /// For a version of the movie, 4 to 8; others count as the nearest.
    explicit ActionCompiler(Long version);

    /// Compiles a text: UTF-8 from version 6 on, code page 932 below.
    CompiledScript Compile(std::string_view source) const;

private:
    Long version_;
};

}  // namespace tamber
