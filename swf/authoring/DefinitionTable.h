#pragma once

#include <array>
#include <unordered_map>

#include "document/symbols/clsSymbolData.h"
#include "platform/Collection.h"

namespace tamber {

/// Forms in which a vector symbol is defined; other symbols have the plain one alone.
namespace VectorForm {
inline constexpr Long Plain = 0;
/// For a mask or an export: one shape, one table of styles.
inline constexpr Long Clip = 1;
/// The start of a morph, or a divided drawing as a whole, for a place that has one depth and no
/// tween, as a koma.
inline constexpr Long MorphStart = 2;
}  // namespace VectorForm

/// Identifiers of what one build has defined: the last one of each symbol in each form. A symbol
/// must outlive the build.
class DefinitionTable {
public:
    /// 0 for what is not defined.
    Long IdentifierOf(const clsSymbolData& symbol, Long form = VectorForm::Plain) const {
        const auto found = defined_.find(&symbol);
        return found == defined_.end() ? 0 : found->second[static_cast<std::size_t>(form)];
    }
    void Define(const clsSymbolData& symbol, Long form, Long id) {
        defined_[&symbol][static_cast<std::size_t>(form)] = id;
    }
    /// Lets the symbols of a library tell the identifiers as their `DefineID`, all others none.
    void ShowIn(const Collection<clsSymbolData>& library) const {
        for (const auto& symbol : library) {
            symbol->InitDefineID();
            for (const Long form : {VectorForm::MorphStart, VectorForm::Clip, VectorForm::Plain}) {
                symbol->DefineNum = form;
                symbol->DefineID(IdentifierOf(*symbol, form));
            }
        }
    }

private:
    std::unordered_map<const clsSymbolData*, std::array<Long, 3>> defined_;
};

}  // namespace tamber
