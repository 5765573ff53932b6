#pragma once

#include "platform/types.h"

namespace tamber {

/// A parameter of an effect.
class clsEffectParam {
public:
    /// The script variable's name without its leading "__".
    String Name;
    /// Label in the dialog.
    String Name2;
    /// Help text in the dialog.
    String Comment;
    String DefValue;
    String Value;
    /// 0 text, 1 number, 2 list.
    Long ParamType = 0;
    /// Comes from a project, whose effect file has not told the default yet.
    bool blStored = false;

    /// A value to be kept in the project.
    bool Changed() const { return blStored || Value != DefValue; }

    /// Choices of a list, separated by commas. Line ends are taken out.
    const String& ParamElement() const { return element_; }
    void ParamElement(StringView text);

    clsEffectParam Copy() const { return *this; }
    bool Compare(const clsEffectParam& other) const { return *this == other; }
    bool operator==(const clsEffectParam&) const = default;

private:
    String element_;
};

}  // namespace tamber
