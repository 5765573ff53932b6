#pragma once

#include "script/compiler/Parser.h"

namespace tamber {

/// Counts what stands in each other while it lives, and ends the run when that is too much.
class Parser::Level {
public:
    explicit Level(Parser& parser) : parser_(parser) {
        if (++parser_.depth_ <= MaxDepth) return;
        parser_.Complain(parser_.token_.At, parser_.token_.Text,
                         u"入れ子が深すぎます。式や文を分けて下さい。");
        parser_.isHopeless_ = true;
        --parser_.depth_;
        throw HopelessError();
    }
    ~Level() { --parser_.depth_; }
    Level(const Level&) = delete;
    Level& operator=(const Level&) = delete;

private:
    Parser& parser_;
};

}  // namespace tamber
