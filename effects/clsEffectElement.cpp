#include "effects/clsEffectElement.h"

#include <algorithm>
#include <array>

#include "document/cells/ProjectFileVersion.h"

namespace tamber {

namespace {

constexpr Long VersionWithEffectFrames = 0x50600;
constexpr std::array<StringView, 3> typeTexts{u"in", u"out", u"loop"};
constexpr std::array<StringView, 5> orderTexts{u"Left", u"Right", u"Center", u"Edge", u"Random"};

/// Position of a text in a list, `missing` when it isn't there.
template <std::size_t N>
Long IndexOf(const std::array<StringView, N>& texts, StringView text, Long missing) {
    const auto found = std::find(texts.begin(), texts.end(), text);
    return found == texts.end() ? missing : static_cast<Long>(found - texts.begin());
}

template <std::size_t N>
StringView TextAt(const std::array<StringView, N>& texts, Long index, StringView other) {
    return index >= 0 && index < static_cast<Long>(N) ? texts[static_cast<std::size_t>(index)]
                                                      : other;
}

}  // namespace

void clsEffectElement::CopyTo(clsEffectElement& target) const {
    const bool enable = target.ApplyOneEnable;
    target = *this;
    target.ApplyOneEnable = enable;
    if (!colEffectPrm) return;
    target.colEffectPrm = std::make_shared<Collection<clsEffectParam>>();
    for (const auto& parameter : *colEffectPrm)
        target.colEffectPrm->Add(std::make_shared<clsEffectParam>(*parameter), parameter->Name);
}

bool clsEffectElement::Compare(const clsEffectElement& other) const {
    if (blEffect != other.blEffect || EffectType != other.EffectType ||
        EffectName != other.EffectName || EffectInterval != other.EffectInterval ||
        EfIntervalType != other.EfIntervalType || blAllStop != other.blAllStop ||
        blApplyOne() != other.blApplyOne() || EffectFrames != other.EffectFrames)
        return false;
    static const Collection<clsEffectParam> none;
    const auto& mine = colEffectPrm ? *colEffectPrm : none;
    const auto& theirs = other.colEffectPrm ? *other.colEffectPrm : none;
    return std::equal(mine.begin(), mine.end(), theirs.begin(), theirs.end(),
                      [](const auto& a, const auto& b) { return a->Compare(*b); });
}

void clsEffectElement::Load(clsCSV& csv) {
    blEffect = csv.TakeBoolean();
    EffectType = IndexOf(typeTexts, csv.TakeText(), TypeLoop);
    blApplyOne(csv.TakeBoolean());
    EffectInterval = csv.TakeLong();
    EfIntervalType = IndexOf(orderTexts, csv.TakeText(), EfIntervalType);
    blAllStop = csv.TakeBoolean();
    if (ProjectFileVersion >= VersionWithEffectFrames) EffectFrames = csv.TakeLong();
    EffectName = csv.TakeText();
    colEffectPrm.reset();
    while (!csv.Value().empty()) {
        auto parameter = std::make_shared<clsEffectParam>();
        parameter->Name = csv.TakeText();
        parameter->Value = csv.TakeText();
        parameter->blStored = true;
        if (!colEffectPrm) colEffectPrm = std::make_shared<Collection<clsEffectParam>>();
        const String name = parameter->Name;
        colEffectPrm->Add(std::move(parameter), name);
    }
    csv.Right();
}

void clsEffectElement::Save(clsCSV& csv) const {
    csv.Put(blEffect);
    csv.Put(TextAt(typeTexts, EffectType, typeTexts[TypeLoop]));
    csv.Put(blApplyOne());
    csv.Put(EffectInterval);
    csv.Put(TextAt(orderTexts, EfIntervalType, orderTexts[0]));
    csv.Put(blAllStop);
    csv.Put(EffectFrames);
    csv.Put(EffectName);
    if (colEffectPrm) {
        for (const auto& parameter : *colEffectPrm) {
            if (!parameter->Changed()) continue;
            csv.Put(parameter->Name);
            csv.Put(parameter->Value);
        }
    }
    csv.Put(StringView());
}

}  // namespace tamber
