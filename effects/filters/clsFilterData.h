#pragma once

#include <memory>

#include "effects/filters/clsFilterBevel.h"
#include "effects/filters/clsFilterBlur.h"
#include "effects/filters/clsFilterColorMatrix.h"
#include "effects/filters/clsFilterConvolution.h"
#include "effects/filters/clsFilterDropShadow.h"
#include "effects/filters/clsFilterEditColor.h"
#include "effects/filters/clsFilterGlow.h"

namespace tamber {

/// The filter set of a placed symbol. A filter switched off keeps its values.
class clsFilterData {
public:
    bool blEditColor = false;
    clsFilterEditColor fltEditColor;
    bool blDropShadow = false;
    clsFilterDropShadow fltDropShadow;
    bool blBlur = false;
    clsFilterBlur fltBlur;
    bool blGlow = false;
    clsFilterGlow fltGlow;
    bool blBevel = false;
    clsFilterBevel fltBevel;
    bool blConvolution = false;
    clsFilterConvolution fltConvolution;
    bool blColorMatrix = false;
    clsFilterColorMatrix fltColorMatrix;

    /// Filters switched on; the colour transform is none.
    Long FilterCount() const;
    /// True when a filter switched on differs from the other set's in a value that a tween changes.
    bool CkMorphing(const clsFilterData& other) const;
    /// The weighted sum of each filter switched on here.
    std::shared_ptr<clsFilterData> Morphing(const clsFilterData& other, double weightThis,
                                            double weightOther) const;
    bool CkUpDate(const clsFilterData& other) const { return !(*this == other); }
    std::shared_ptr<clsFilterData> Copy() const { return std::make_shared<clsFilterData>(*this); }
    void CopyTo(clsFilterData& target) const { target = *this; }
    /// This set as an end of a tween. With `merge` it gains each filter that only the other has, at
    /// no strength.
    std::shared_ptr<clsFilterData> AuthoringCopy(const clsFilterData& other, bool merge) const;
    void AuthoringCopyTo(const clsFilterData& other, bool merge, clsFilterData& result) const;
    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;
    bool operator==(const clsFilterData&) const = default;

    /// The pairs of a switch and its record, each record right behind its switch.
    static constexpr auto Fields() {
        using T = clsFilterData;
        return std::tuple{
            Switched(u"blEditColor", &T::blEditColor, u"", &T::fltEditColor),
            Switched(u"blDropShadow", &T::blDropShadow, u"DropShadow.", &T::fltDropShadow),
            Switched(u"blBlur", &T::blBlur, u"Blur.", &T::fltBlur),
            Switched(u"blGlow", &T::blGlow, u"Glow.", &T::fltGlow),
            Switched(u"blBevel", &T::blBevel, u"Bevel.", &T::fltBevel),
            Switched(u"blConvolution", &T::blConvolution, u"", &T::fltConvolution),
            Switched(u"blColorMatrix", &T::blColorMatrix, u"", &T::fltColorMatrix),
        };
    }

private:
    template <class T>
    struct Pair {
        using Record = T;
        CellField<clsFilterData, bool, AsIs> Switch;
        RecordField<clsFilterData, T> Filter;

        void Load(clsFilterData& owner, clsCSV& csv) const {
            Switch.Load(owner, csv);
            Filter.Load(owner, csv);
        }
        void Save(const clsFilterData& owner, clsCSV& csv) const {
            Switch.Save(owner, csv);
            Filter.Save(owner, csv);
        }
        void Tell(const clsFilterData& owner, const FieldSink& sink, const String& prefix) const {
            Switch.Tell(owner, sink, prefix);
            Filter.Tell(owner, sink, prefix);
        }
        bool Set(clsFilterData& owner, StringView name, StringView value) const {
            return Switch.Set(owner, name, value) || Filter.Set(owner, name, value);
        }
    };
    template <class T>
    static constexpr Pair<T> Switched(StringView name, bool clsFilterData::*on, StringView prefix,
                                      T clsFilterData::*filter) {
        return {{name, on, {}, {}}, {{}, prefix, filter}};
    }
};

}  // namespace tamber
