#include "script/compiler/SymbolTable.h"

#include <cstring>

namespace tamber {

namespace {

constexpr std::size_t FirstSlots = 1024;

}  // namespace

std::uint32_t SymbolTable::HashOf(std::string_view text) {
    std::uint64_t hash = text.size();
    const char* at = text.data();
    std::size_t left = text.size();
    for (; left >= 8; left -= 8, at += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, at, 8);
        hash = (hash ^ word) * 0x9E3779B97F4A7C15;
        hash ^= hash >> 29;
    }
    std::uint64_t word = 0;
    if (left != 0) std::memcpy(&word, at, left);
    hash = (hash ^ word) * 0x9E3779B97F4A7C15;
    return static_cast<std::uint32_t>(hash >> 32);
}

SymbolTable::SymbolTable() : slots_(FirstSlots) {}

Symbol* SymbolTable::Intern(std::string_view text) {
    const std::uint32_t hash = HashOf(text);
    Symbol*& slot = Slot(text, hash);
    return slot != nullptr ? slot : Add(slot, text, hash);
}

Symbol* SymbolTable::InternCopy(std::string_view text) {
    const std::uint32_t hash = HashOf(text);
    Symbol*& slot = Slot(text, hash);
    return slot != nullptr ? slot : Add(slot, texts_.Keep(text), hash);
}

Symbol*& SymbolTable::Slot(std::string_view text, std::uint32_t hash) {
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
        Symbol*& slot = slots_[at];
        if (slot == nullptr || (slot->Hash == hash && slot->Text == text)) return slot;
    }
}

Symbol* SymbolTable::Add(Symbol*& slot, std::string_view text, std::uint32_t hash) {
    Symbol& symbol = symbols_.emplace_back();
    symbol.Text = text;
    symbol.Hash = hash;
    symbol.Index = static_cast<std::uint32_t>(symbols_.size() - 1);
    slot = &symbol;
    if (symbols_.size() * 2 > slots_.size()) Grow();
    return &symbol;
}

void SymbolTable::Grow() {
    slots_.assign(slots_.size() * 2, nullptr);
    const std::size_t mask = slots_.size() - 1;
    for (Symbol& symbol : symbols_) {
        std::size_t at = symbol.Hash & mask;
        while (slots_[at] != nullptr) at = (at + 1) & mask;
        slots_[at] = &symbol;
    }
}

}  // namespace tamber
