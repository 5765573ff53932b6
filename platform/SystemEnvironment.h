#pragma once

#include "platform/types.h"

namespace tamber {

/// What the program finds on the machine when it starts.
class SystemEnvironment {
public:
    virtual ~SystemEnvironment() = default;

    /// Gives the command line to an instance that runs already. False when there is none.
    virtual bool HandOver(StringView commandLine) = 0;
    /// Screen size in pixels.
    virtual Long ScreenWidth() const = 0;
    virtual Long ScreenHeight() const = 0;
    /// A shared control of the system, by its file name.
    virtual bool ComponentExists(StringView name) const = 0;
    /// Loads a library of the program. False when it is not found.
    virtual bool LoadLibrary(StringView name) = 0;
    virtual void FreeLibrary(StringView name) = 0;
};

/// The environment of a run without a window: no screen limits it, and what other builds find in
/// shared controls and libraries is part of the program itself.
class OwnEnvironment : public SystemEnvironment {
public:
    bool HandOver(StringView) override { return false; }
    Long ScreenWidth() const override { return Unlimited; }
    Long ScreenHeight() const override { return Unlimited; }
    bool ComponentExists(StringView) const override { return true; }
    bool LoadLibrary(StringView) override { return true; }
    void FreeLibrary(StringView) override {}

private:
    static constexpr Long Unlimited = 0x7FFFFFFF;
};

}  // namespace tamber
