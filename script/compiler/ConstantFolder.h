#pragma once

#include "script/compiler/Node.h"
#include "script/compiler/SymbolTable.h"

namespace tamber {

/// Works out operators whose operands are literals, as the player would.
class ConstantFolder {
public:
    ConstantFolder(SymbolTable& symbols, Long version) : symbols_(symbols), version_(version) {}

    /// The operator's node, or in its place the literal that it gives; the node is reused.
    Node* Fold(Node* node);
    /// What a literal is as a condition: 1, 0, or -1 for all that is not known before it runs.
    int ConditionOf(const Node& node) const;

private:
    Node* FoldUnary(Node* node) const;
    Node* FoldNumbers(Node* node) const;
    bool IsKnown(double result) const;
    Node* FoldComparison(Node* node) const;
    Node* FoldTexts(Node* node);
    bool TextOf(const Node& node, std::string& text) const;

    SymbolTable& symbols_;
    Long version_;
};

}  // namespace tamber
