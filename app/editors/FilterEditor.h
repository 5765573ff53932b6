#pragma once

#include <array>
#include <memory>

#include "effects/filters/clsFilterData.h"
#include "platform/types.h"

namespace tamber {

/// Edits the filters of an element on a copy, which the element takes in the end or not.
class FilterEditor {
public:
    /// An entry of the list of filters: its caption and the switch that its check box sets.
    struct Entry {
        StringView Caption;
        bool clsFilterData::*Switch;
    };
    static const std::array<Entry, 7>& Entries();

    /// What the boxes of a form take.
    static constexpr Within ColorMultiplier{-200, 200};
    static constexpr Within ColorAddend{-255, 255};
    static constexpr Within Alpha{0, 100};
    /// More would reach into the flags that stand beside the count in the movie.
    static constexpr Within PassCount{1, 15};

    explicit FilterEditor(const clsFilterData& filters) : before_(filters), filters_(filters) {}

    /// The copy, whose fields a form changes.
    clsFilterData& Filters() { return filters_; }
    const clsFilterData& Filters() const { return filters_; }
    bool IsChanged() const { return filters_.CkUpDate(before_); }
    /// The filters as they were when the editor was opened.
    const clsFilterData& Before() const { return before_; }

    /// `BlurY` follows `BlurX`, in whichever filter they stand.
    bool chkBlurLink = false;
    /// Sets the extents of a blur; with the link both become `x`.
    template <class Filter>
    void Blur(Filter& filter, Single x, Single y) const {
        filter.BlurX(x);
        filter.BlurY(chkBlurLink ? x : y);
    }

    /// Divisor and bias follow the cells of the convolution.
    bool AutoConvolution() const { return autoConvolution_; }
    void AutoConvolution(bool on);
    /// Cell 0 to 24.
    void ConvolutionCell(Long index, Single value);
    /// By its place in `ConvolutionPresets`.
    void UseConvolutionPreset(std::size_t index);
    /// By its place in `ColorMatrixPresets`.
    void UseColorMatrixPreset(std::size_t index);

    /// Tells, once, that a movie of this version has no filters, when any is on. The filters stay.
    void CheckVersion(Long version);

private:
    void CalculateConvolution();

    clsFilterData before_;
    clsFilterData filters_;
    bool autoConvolution_ = false;
    bool warned_ = false;
};

}  // namespace tamber
