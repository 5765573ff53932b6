#pragma once

#include <memory>

#include "document/cells/Fields.h"
#include "document/elements/clsEdgingTable.h"
#include "document/elements/clsTweenPointData.h"
#include "effects/filters/clsFilterData.h"
#include "platform/Collection.h"
#include "platform/types.h"

namespace tamber {

/// One decimal as the display format "#0.0" rounds: by the seven digits a Single shows, halves away
/// from zero.
Single OneDecimal(Single value);

/// The rule of a placement's curves: a number where their first cell should be is the blend mode of
/// a file without curves, and the mode "ALL" stands in front of one curve alone.
struct CurveRows : AlwaysWritten {
    template <class Owner, class Fields>
    static void Load(Owner& owner, clsCSV& csv, const Fields& fields) {
        if (IsNumeric(csv.Value())) return;
        const bool one = csv.Value() == u"ALL";
        const auto& [mode, custom, position, parameters] = fields;
        mode.Load(owner, csv);
        custom.Load(owner, csv);
        position.Load(owner, csv);
        if (!one) parameters.Load(owner, csv);
        csv.CrLf();
    }
    template <class Owner, class Fields>
    static void Save(const Owner& owner, clsCSV& csv, const Fields& fields) {
        std::apply([&](const auto&... field) { (field.Save(owner, csv), ...); }, fields);
        csv.CrLf();
    }
};

/// The points of a motion path: their number, and when there are any, all of them in a row of their
/// own. They count and are copied apart from the placement.
template <class Owner>
struct PathField {
    using Points = Collection<clsTweenPointData>;
    StringView Name;
    Points Owner::*Member;

    void Load(Owner& owner, clsCSV& csv) const {
        Points& points = owner.*Member;
        const Long count = csv.TakeLong();
        points.Clear();
        if (count > 0) csv.CrLf();
        for (Long i = 0; i < count; ++i) {
            auto point = std::make_shared<clsTweenPointData>();
            LoadFields(*point, csv);
            points.Add(std::move(point));
        }
    }
    void Save(const Owner& owner, clsCSV& csv) const {
        const Points& points = owner.*Member;
        csv.Put(points.Count());
        if (points.Empty()) return;
        csv.CrLf();
        for (const auto& point : points) SaveFields(*point, csv);
    }
    static void Copy(const Owner&, Owner&) {}
    static bool Same(const Owner&, const Owner&) { return true; }
    static void Tell(const Owner&, const FieldSink&, const String&) {}
    static bool Set(Owner&, StringView, StringView) { return false; }
    template <class Visit>
    void Show(const Owner& owner, Visit&& visit) const {
        visit(Name, owner.*Member);
    }
};

/// The placement of a visual element at its key frame. Positions are pixels, held to one decimal;
/// scale, angle and skew are held as whole ten-thousandths.
class clsLayerObjElement {
public:
    /// Their upper bounds are what a Single makes of 16383.99 and 32767.99.
    static constexpr TenThousandths Scale{-163840000, 163839904};
    static constexpr TenThousandths Degrees{-327680000, 327679904};
    static constexpr TenThousandths SkewDegrees{-890000, 890000};
    static constexpr Among BlendMode{0, 14};

    bool chkFixedRatio = true;
    /// Percent, -100 to 100.
    Long Bright = 0;
    /// Opacity in percent, 0 to 100.
    Long Toumei = 100;
    /// Speed change of a tween, -255 gradually faster to 255 gradually slower.
    Long Edging = 0;
    Long eBlend = 0;
    std::shared_ptr<clsFilterData> inFilter = std::make_shared<clsFilterData>();
    /// The curves apply in place of `Edging`.
    bool blCustomEdging = false;
    /// 0: a curve for the position and one for the rest; 1: `EdgingTblXY` for all; 2:
    /// `EdgingTblPrm` for all.
    Long EdgingAllMode = 1;
    clsEdgingTable EdgingTblXY;
    clsEdgingTable EdgingTblPrm;
    /// Motion path between this key frame and the next.
    Collection<clsTweenPointData> colTweenPoint;

    clsLayerObjElement() = default;
    clsLayerObjElement(const clsLayerObjElement&) = delete;
    clsLayerObjElement& operator=(const clsLayerObjElement&) = delete;

    /// Where the symbol's control point lies on the stage.
    Single X() const { return x_; }
    void X(Single value) { x_ = OneDecimal(value); }
    Single Y() const { return y_; }
    void Y(Single value) { y_ = OneDecimal(value); }
    /// The control point, from the symbol's left and top.
    Single OffsetX() const { return offsetX_; }
    void OffsetX(Single value) { offsetX_ = OneDecimal(value); }
    Single OffsetY() const { return offsetY_; }
    void OffsetY(Single value) { offsetY_ = OneDecimal(value); }
    /// 1 is actual size; -16384 to 16383.99.
    Single ScaleX() const { return Scale.Seen(scaleX_); }
    void ScaleX(Single value) { scaleX_ = Scale.FromSingle(value); }
    Single ScaleY() const { return Scale.Seen(scaleY_); }
    void ScaleY(Single value) { scaleY_ = Scale.FromSingle(value); }
    /// Degrees, -32768 to 32767.99.
    Single Angle() const { return Degrees.Seen(angle_); }
    void Angle(Single value) { angle_ = Degrees.FromSingle(value); }
    /// Degrees, -89 to 89.
    Single SkewX() const { return SkewDegrees.Seen(skewX_); }
    void SkewX(Single value) { skewX_ = SkewDegrees.FromSingle(value); }
    Single SkewY() const { return SkewDegrees.Seen(skewY_); }
    void SkewY(Single value) { skewY_ = SkewDegrees.FromSingle(value); }

    /// The curve in use for the position, or with `second` for the other values.
    const clsEdgingTable& EdgingTbl(bool second) const;
    clsEdgingTable& EdgingTbl(bool second);

    Long tpCount() const { return colTweenPoint.Count(); }
    const std::shared_ptr<clsTweenPointData>& TweenPoint(Long index) const;
    /// Appends with `before` 0, else inserts before that index.
    void Addtp(std::shared_ptr<clsTweenPointData> point, Long before = 0);
    void Removetp(Long index);
    void Cleartp();

    /// True when all placement values agree, filter and curves included; motion paths don't count.
    bool Compare(const clsLayerObjElement& other) const;
    /// Copies all values; the motion path only with `withPoints`.
    void CopyTo(clsLayerObjElement& target, bool withPoints) const;
    void TPCopyTo(clsLayerObjElement& target) const;

    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;

    static constexpr auto Fields() {
        using T = clsLayerObjElement;
        constexpr FromVersion WithSkew(0x60200);
        return std::tuple{
            Field(u"X", &T::x_, Fitted(OneDecimal)),
            Field(u"Y", &T::y_, Fitted(OneDecimal)),
            Field(u"OffsetX", &T::offsetX_, Fitted(OneDecimal)),
            Field(u"OffsetY", &T::offsetY_, Fitted(OneDecimal)),
            Field(u"chkFixedRatio", &T::chkFixedRatio),
            Field(u"ScaleX", &T::scaleX_, Scale),
            Field(u"ScaleY", &T::scaleY_, Scale),
            Field(u"Bright", &T::Bright, Within(-100, 100)),
            Field(u"Toumei", &T::Toumei, Within(0, 100)),
            Field(u"Angle", &T::angle_, Degrees),
            Group(WithSkew, Field(u"SkewX", &T::skewX_, SkewDegrees),
                  Field(u"SkewY", &T::skewY_, SkewDegrees)),
            Field(u"Edging", &T::Edging, Within(-255, 255)),
            Group(CurveRows(),
                  Field(u"EdgingAllMode", &T::EdgingAllMode,
                        WordsByNumber({{0, u"NON"}, {1, u"XY"}, {2, u"PRM"}}, 1)),
                  Field(u"blCustomEdging", &T::blCustomEdging),
                  Record(u"EdgingTblXY", u"", &T::EdgingTblXY),
                  Record(u"EdgingTblPrm", u"", &T::EdgingTblPrm)),
            Field(u"eBlend", &T::eBlend, BlendMode),
            Record(u"filters", u"", &T::inFilter),
            PathField<T>{u"tweenPoints", &T::colTweenPoint},
        };
    }

private:
    Single x_ = 0;
    Single y_ = 0;
    Single offsetX_ = 0;
    Single offsetY_ = 0;
    Long scaleX_ = 10000;
    Long scaleY_ = 10000;
    Long angle_ = 0;
    Long skewX_ = 0;
    Long skewY_ = 0;
};

}  // namespace tamber
