#pragma once

#include <algorithm>
#include <type_traits>

#include "document/cells/Fields.h"
#include "effects/filters/FilterValues.h"

namespace tamber {

/// Weighted sum of two values of a field, held as the field holds its numbers.
template <class T, class Form>
T MixField(const Form& form, T a, T b, double weightA, double weightB) {
    if constexpr (std::is_same_v<T, Byte>)
        return form.Fit(static_cast<Byte>(std::clamp(MixLong(a, b, weightA, weightB), 0, 255)));
    else if constexpr (std::is_same_v<T, Single>)
        return form.Fit(Mix(a, b, weightA, weightB));
    else
        return form.Fit(MixLong(a, b, weightA, weightB));
}

/// Base of the filters: what their fields say of them.
template <class Self>
class FilterRecord {
public:
    /// True when a value differs that a tween can change.
    bool CkMorphing(const Self& other) const {
        bool differs = false;
        ForEachField<Self>([&](const auto& field) {
            if (field.Use.Tween == InTween::Keeps) return;
            field.Each([&](const auto&, auto& a, auto& b) { differs |= a != b; }, Own(), other);
        });
        return differs;
    }
    /// The weighted sum of the two; counts and switches are of this one.
    Self Morphing(const Self& other, double weightThis, double weightOther) const {
        Self result = Own();
        ForEachField<Self>([&](const auto& field) {
            if (field.Use.Tween < InTween::Mixes) return;
            field.Each(
                [&](const auto& mixed, auto& target, auto& value) {
                    if constexpr (!std::is_same_v<std::decay_t<decltype(value)>, bool>)
                        target = MixField(mixed.How, target, value, weightThis, weightOther);
                },
                result, other);
        });
        return result;
    }
    /// True when anything differs.
    bool CkUpDate(const Self& other) const { return !(Own() == other); }
    Self Copy() const { return Own(); }
    void CopyTo(Self& target) const { target = Own(); }
    /// The filter as a tween begins or ends with where it is not switched on: the source's shape
    /// at no strength, or a filter without effect where there is no lesser form.
    static Self AuthoringCopy(const Self* source) {
        Self result;
        Self::AuthoringCopyTo(result, source);
        return result;
    }
    static void AuthoringCopyTo(Self& target, const Self* source) {
        Self result = source != nullptr ? *source : Self();
        bool fades = false;
        ForEachField<Self>([&](const auto& field) {
            if (field.Use.Tween != InTween::Fades) return;
            fades = true;
            field.Each([](const auto&, auto& value) { value = {}; }, result);
        });
        target = fades ? result : Self();
    }
    void Load(clsCSV& csv) { LoadFields(static_cast<Self&>(*this), csv); }
    void Save(clsCSV& csv) const { SaveFields(Own(), csv); }
    bool operator==(const FilterRecord&) const = default;

private:
    const Self& Own() const { return static_cast<const Self&>(*this); }
};

}  // namespace tamber
