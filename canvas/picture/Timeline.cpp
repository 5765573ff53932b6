#include "canvas/picture/Timeline.h"

#include <algorithm>

namespace tamber {

namespace {

void Change(Placement& placement, const TimelineStep& step) {
    if (step.Matrix) placement.Matrix = *step.Matrix;
    if (step.Colors) placement.Colors = *step.Colors;
    if (step.Ratio) placement.Ratio = *step.Ratio;
    if (step.ClipDepth) placement.ClipDepth = *step.ClipDepth;
    if (step.Filters) placement.Filters = *step.Filters;
    if (step.Blend) placement.Blend = *step.Blend;
    if (step.Name) placement.Name = *step.Name;
}

}  // namespace

Long Timeline::Nesting() const {
    Long nesting = 0;
    for (const TimelineStep& step : steps_)
        if (step.Shown) nesting = std::max(nesting, step.Shown->Nesting());
    return nesting;
}

void Timeline::Do(const TimelineStep& step) const {
    using Kind = TimelineStep::Kind;
    const auto found = stage_.find(step.Depth);
    const bool stands = found != stage_.end();
    if (step.What == Kind::Remove) {
        if (stands) stage_.erase(found);
        return;
    }
    if (step.What == Kind::Place && stands) return;
    if (step.What == Kind::Move && !stands) return;
    Placement placement = stands ? *found->second : Placement();
    placement.Depth = step.Depth;
    if (step.What != Kind::Move) {
        placement.Shown = step.Shown;
        placement.Since = frame_;
    }
    Change(placement, step);
    if (!placement.Shown) return;
    stage_[step.Depth] = std::make_shared<const Placement>(std::move(placement));
}

void Timeline::Advance() const {
    ++frame_;
    const auto index = static_cast<std::size_t>(frame_);
    const std::size_t first = index == 0 || ends_.empty() ? 0 : ends_[index - 1];
    const std::size_t end = ends_.empty() ? steps_.size() : ends_[index];
    for (std::size_t i = first; i < end; ++i) Do(steps_[i]);
}

const DisplayList& Timeline::At(Long frame) const {
    const Long wanted = std::clamp(frame, 0, FrameCount() - 1);
    if (wanted == frame_) return list_;
    if (wanted < frame_) {
        frame_ = -1;
        stage_.clear();
    }
    while (frame_ < wanted) Advance();
    list_.clear();
    for (const auto& [depth, placement] : stage_) list_.push_back(placement);
    return list_;
}

bool Timeline::Stays(const Placement& placement) const {
    if (placement.Since != 0) return false;
    if (!staying_) {
        Timeline whole;
        whole.steps_ = steps_;
        whole.ends_ = ends_;
        staying_.emplace();
        for (const auto& last : whole.At(FrameCount() - 1))
            if (last->Since == 0) staying_->emplace(last->Depth, last);
    }
    const auto found = staying_->find(placement.Depth);
    return found != staying_->end() && found->second->Shown == placement.Shown;
}

}  // namespace tamber
