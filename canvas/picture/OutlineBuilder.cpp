#include "canvas/picture/OutlineBuilder.h"

#include <unordered_map>
#include <utility>

namespace tamber {

namespace {

/// An edge with the fill on its right.
struct DirectedEdge {
    SwfPoint From;
    SwfPoint Control;
    SwfPoint To;
    bool blCurved;
};

std::uint64_t KeyOf(SwfPoint point) {
    return std::uint64_t{static_cast<std::uint32_t>(point.X)} << 32 |
           static_cast<std::uint32_t>(point.Y);
}

void Follow(const DirectedEdge& edge, PicturePath& path) {
    if (edge.blCurved)
        path.CurveTo(edge.Control.X, edge.Control.Y, edge.To.X, edge.To.Y);
    else
        path.LineTo(edge.To.X, edge.To.Y);
}

/// Links the edges around one fill to contours.
class ContourLinker {
public:
    explicit ContourLinker(const std::vector<DirectedEdge>& edges)
        : edges_(edges), next_(edges.size(), None), used_(edges.size()) {
        // The first edge that begins at a point shall be the first to be found there.
        for (std::size_t i = edges.size(); i-- > 0;) {
            const auto [found, isNew] = beginning_.try_emplace(KeyOf(edges[i].From), i);
            if (isNew) continue;
            next_[i] = found->second;
            found->second = i;
        }
    }

    PicturePath Link() {
        PicturePath path;
        for (std::size_t i = 0; i < edges_.size(); ++i)
            if (!used_[i]) FollowFrom(i, path);
        return path;
    }

private:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    void FollowFrom(std::size_t first, PicturePath& path) {
        const SwfPoint start = edges_[first].From;
        path.MoveTo(start.X, start.Y);
        std::size_t at = first;
        while (at != None) {
            used_[at] = true;
            Follow(edges_[at], path);
            const SwfPoint end = edges_[at].To;
            if (end == start) break;
            at = After(at, end);
        }
        path.Close();
    }

    /// An unused edge that begins where the last one ended: the one behind it, if that does.
    std::size_t After(std::size_t last, SwfPoint point) {
        const std::size_t following = last + 1;
        if (following < edges_.size() && !used_[following] && edges_[following].From == point)
            return following;
        const auto found = beginning_.find(KeyOf(point));
        if (found == beginning_.end()) return None;
        std::size_t& first = found->second;
        while (first != None && used_[first]) first = next_[first];
        return first;
    }

    const std::vector<DirectedEdge>& edges_;
    /// Another edge that begins at the same point.
    std::vector<std::size_t> next_;
    std::vector<bool> used_;
    std::unordered_map<std::uint64_t, std::size_t> beginning_;
};

}  // namespace

std::vector<PicturePath> OutlineBuilder::Fills(Long count) const {
    std::vector<std::vector<DirectedEdge>> edges(static_cast<std::size_t>(count));
    const auto has = [count](Long fill) { return fill >= 1 && fill <= count; };
    for (const OutlineStep& step : steps_) {
        if (step.Fill0 == step.Fill1) continue;
        if (has(step.Fill1))
            edges[static_cast<std::size_t>(step.Fill1 - 1)].push_back(
                {step.From, step.Control, step.To, step.blCurved});
        if (has(step.Fill0))
            edges[static_cast<std::size_t>(step.Fill0 - 1)].push_back(
                {step.To, step.Control, step.From, step.blCurved});
    }
    std::vector<PicturePath> paths;
    paths.reserve(edges.size());
    for (const auto& around : edges) paths.push_back(ContourLinker(around).Link());
    return paths;
}

std::vector<PicturePath> OutlineBuilder::Lines(const std::vector<bool>& noClose) const {
    struct Pen {
        SwfPoint Start;
        SwfPoint At;
        bool blDown = false;
    };
    std::vector<PicturePath> paths(noClose.size());
    std::vector<Pen> pens(noClose.size());
    const auto lift = [&](std::size_t line) {
        Pen& pen = pens[line];
        if (pen.blDown && pen.At == pen.Start && !noClose[line]) paths[line].Close();
        pen.blDown = false;
    };
    for (const OutlineStep& step : steps_) {
        if (step.Line < 1 || step.Line > static_cast<Long>(noClose.size())) continue;
        const auto line = static_cast<std::size_t>(step.Line - 1);
        Pen& pen = pens[line];
        if (!pen.blDown || !(pen.At == step.From)) {
            lift(line);
            paths[line].MoveTo(step.From.X, step.From.Y);
            pen = {step.From, step.From, true};
        }
        Follow({step.From, step.Control, step.To, step.blCurved}, paths[line]);
        pen.At = step.To;
    }
    for (std::size_t line = 0; line < pens.size(); ++line) lift(line);
    return paths;
}

}  // namespace tamber
