#pragma once

#include "script/compiler/Parser.h"

namespace tamber {

/// What surrounds the statement or member that is read next, to go back to after an error in it.
class Parser::State {
public:
    explicit State(Parser& parser)
        : parser_(parser),
          loops_(parser.loops_),
          switches_(parser.switches_),
          colonsAwaited_(parser.colonsAwaited_),
          blocks_(parser.blocks_),
          literals_(parser.literals_),
          inClass_(parser.inClass_),
          function_(parser.function_),
          target_(parser.target_),
          firstGuard_(parser.firstGuard_),
          guards_(parser.guards_.size()) {}

    /// The number of object literals that were left open. Ends the run when there are too many
    /// errors.
    int Restore() const {
        const int open = parser_.literals_ - literals_;
        parser_.literals_ = literals_;
        parser_.loops_ = loops_;
        parser_.switches_ = switches_;
        parser_.colonsAwaited_ = colonsAwaited_;
        parser_.blocks_ = blocks_;
        parser_.inClass_ = inClass_;
        parser_.inObjectField_ = false;
        if (!inClass_) parser_.imports_.EndClass();
        parser_.function_ = function_;
        parser_.target_ = target_;
        parser_.firstGuard_ = firstGuard_;
        parser_.guards_.resize(guards_);
        if (parser_.diagnostics_.IsFull()) throw HopelessError();
        return open;
    }

private:
    Parser& parser_;
    int loops_;
    int switches_;
    int colonsAwaited_;
    int blocks_;
    int literals_;
    bool inClass_;
    FunctionNode* function_;
    Node* target_;
    std::size_t firstGuard_;
    std::size_t guards_;
};

}  // namespace tamber
