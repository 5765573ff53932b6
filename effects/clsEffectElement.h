#pragma once

#include <algorithm>
#include <memory>

#include "document/cells/Fields.h"
#include "effects/clsEffectParam.h"
#include "platform/Collection.h"
#include "platform/types.h"

namespace tamber {

/// The parameters of an effect: a name and a value for each that was changed, then an empty cell.
template <class Owner>
struct ParameterField {
    using Parameters = Collection<clsEffectParam>;
    std::shared_ptr<Parameters> Owner::*Member;

    void Load(Owner& owner, clsCSV& csv) const {
        auto& parameters = owner.*Member;
        parameters.reset();
        while (!csv.Value().empty()) {
            auto parameter = std::make_shared<clsEffectParam>();
            parameter->Name = csv.TakeText();
            parameter->Value = csv.TakeText();
            parameter->blStored = true;
            if (!parameters) parameters = std::make_shared<Parameters>();
            const String name = parameter->Name;
            parameters->Add(std::move(parameter), name);
        }
        csv.Right();
    }
    void Save(const Owner& owner, clsCSV& csv) const {
        ForEachCell(owner, [&csv](const String& cell) { csv.Put(cell); });
    }
    void Copy(const Owner& from, Owner& to) const {
        std::shared_ptr<Parameters> copy;
        if (from.*Member) copy = std::make_shared<Parameters>();
        for (const auto& parameter : Of(from))
            copy->Add(std::make_shared<clsEffectParam>(*parameter), parameter->Name);
        to.*Member = std::move(copy);
    }
    bool Same(const Owner& a, const Owner& b) const {
        return std::equal(Of(a).begin(), Of(a).end(), Of(b).begin(), Of(b).end(),
                          [](const auto& one, const auto& other) { return one->Compare(*other); });
    }
    void Tell(const Owner& owner, const FieldSink& sink, const String&) const {
        ForEachCell(owner, [&sink](const String& cell) { sink(StringView(), cell); });
    }
    static bool Set(Owner&, StringView, StringView) { return false; }

private:
    const Parameters& Of(const Owner& owner) const {
        static const Parameters none;
        return owner.*Member ? *(owner.*Member) : none;
    }
    template <class Visit>
    void ForEachCell(const Owner& owner, Visit&& visit) const {
        for (const auto& parameter : Of(owner)) {
            if (!parameter->Changed()) continue;
            visit(parameter->Name);
            visit(parameter->Value);
        }
        visit(String());
    }
};

/// The effect on a span of an element.
class clsEffectElement {
public:
    static constexpr Long TypeIn = 0;
    static constexpr Long TypeOut = 1;
    static constexpr Long TypeLoop = 2;

    bool blEffect = false;
    Long EffectType = TypeIn;
    String EffectName;
    /// Frames between one letter and the next.
    Long EffectInterval = 0;
    /// Letter order: 0 left, 1 right, 2 centre, 3 edge, 4 random.
    Long EfIntervalType = 0;
    /// All letters stop together.
    bool blAllStop = false;
    /// The element is a text, so that it can be shown letter by letter.
    bool ApplyOneEnable = false;
    /// Frames of the effect's span.
    Long EffectFrames = 20;
    /// Parameters the user changed, by name; null when there are none.
    std::shared_ptr<Collection<clsEffectParam>> colEffectPrm;

    /// One letter at a time; always false without `ApplyOneEnable`.
    bool blApplyOne() const { return ApplyOneEnable && applyOne_; }
    void blApplyOne(bool value) { applyOne_ = ApplyOneEnable && value; }

    /// Parameters are copied too; `ApplyOneEnable` stays the target's own.
    void CopyTo(clsEffectElement& target) const { CopyFields(*this, target); }
    bool Compare(const clsEffectElement& other) const { return SameFields(*this, other); }
    void Load(clsCSV& csv) { LoadFields(*this, csv); }
    void Save(clsCSV& csv) const { SaveFields(*this, csv); }

    static constexpr auto Fields() {
        using T = clsEffectElement;
        constexpr FromVersion WithFrames(0x50600);
        return std::tuple{
            Field(u"blEffect", &T::blEffect),
            Field(u"EffectType", &T::EffectType,
                  Words({{TypeIn, u"in"}, {TypeOut, u"out"}, {TypeLoop, u"loop"}}, 2)),
            Property<T, bool>(u"blApplyOne", &T::blApplyOne, &T::blApplyOne),
            Field(u"EffectInterval", &T::EffectInterval),
            Field(u"EfIntervalType", &T::EfIntervalType,
                  Words({{0, u"Left"}, {1, u"Right"}, {2, u"Center"}, {3, u"Edge"}, {4, u"Random"}},
                        0)),
            Field(u"blAllStop", &T::blAllStop),
            Group(WithFrames, Field(u"EffectFrames", &T::EffectFrames)),
            Field(u"EffectName", &T::EffectName),
            ParameterField<T>{&T::colEffectPrm},
        };
    }

private:
    bool applyOne_ = false;
};

}  // namespace tamber
