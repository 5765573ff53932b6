#pragma once

#include "document/cells/Fields.h"
#include "platform/types.h"

namespace tamber {

/// One script: free text, or a simple action that composes its own.
class clsScriptData {
public:
    static constexpr Long ModeFree = -1;
    static constexpr Long ModePlay = 0;
    static constexpr Long ModeStop = 1;
    static constexpr Long ModeJump = 2;
    static constexpr Long ModePrevious = 3;
    static constexpr Long ModeNext = 4;
    static constexpr Long ModeUrl = 5;

    /// The free text.
    String ScriptText;
    /// Jump: 0 the target is a number or expression, 1 a frame label.
    Long nPrm1 = 0;
    /// Jump: 0 goes on playing, 1 stops.
    Long nPrm2 = 0;
    /// Jump: frame or label. URL: the address.
    String strPrm1;
    /// URL: the window, may be empty.
    String strPrm2;
    /// Timeline that a simple action is aimed at, may be empty.
    String TargetPath;

    Long eScriptMode() const { return mode_; }
    void eScriptMode(Long mode);

    /// The text to compile, for a movie of this version.
    String Script(Long swfVersion) const;
    /// Caption of a simple action.
    String Comment() const;
    /// The script cut to `length` characters for a tool tip.
    String PrevScript(Long length, Long swfVersion) const;
    /// Target paths don't count.
    bool Compare(const clsScriptData& other) const { return SameFields(*this, other); }
    clsScriptData Copy() const { return *this; }
    void CopyTo(clsScriptData& target) const { target = *this; }
    void Load(clsCSV& csv) { LoadFields(*this, csv); }
    void Save(clsCSV& csv) const { SaveFields(*this, csv); }

    static constexpr auto Fields() {
        using T = clsScriptData;
        constexpr FromVersion WithTargetPath(0x50600);
        return std::tuple{
            Field(u"Script", &T::ScriptText),
            Field(u"eScriptMode", &T::mode_),
            Field(u"nPrm1", &T::nPrm1),
            Field(u"nPrm2", &T::nPrm2),
            Field(u"strPrm1", &T::strPrm1),
            Field(u"strPrm2", &T::strPrm2),
            Group(WithTargetPath, Field(u"TargetPath", &T::TargetPath, Apart)),
        };
    }

private:
    Long mode_ = ModeFree;
};

}  // namespace tamber
