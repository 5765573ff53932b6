#pragma once

#include <deque>
#include <vector>

#include "script/compiler/Arena.h"
#include "script/compiler/Symbol.h"

namespace tamber {

/// All texts of a program.
class SymbolTable {
public:
    SymbolTable();

    /// The symbol of a text. The text must stay where it is; `Copy` is for one that does not.
    Symbol* Intern(std::string_view text);
    Symbol* InternCopy(std::string_view text);
    const std::deque<Symbol>& All() const { return symbols_; }
    std::deque<Symbol>& All() { return symbols_; }
    static std::uint32_t HashOf(std::string_view text);
    Symbol* At(std::uint32_t index) { return &symbols_[index]; }

private:
    Symbol*& Slot(std::string_view text, std::uint32_t hash);
    Symbol* Add(Symbol*& slot, std::string_view text, std::uint32_t hash);
    void Grow();

    std::deque<Symbol> symbols_;
    std::vector<Symbol*> slots_;
    Arena texts_;
};

}  // namespace tamber
