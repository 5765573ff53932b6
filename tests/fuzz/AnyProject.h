#pragma once

#include "document/ProjectReader.h"
#include "platform/UserInterface.h"

namespace tamber {

class Silent : public UserInterface {
public:
    void Message(StringView, StringView, MessageIcon) override {}
    /// No file is there, and each project opens without.
    Answer Ask(StringView, StringView, Choices) override { return Answer::Yes; }
    String OpenFileDialog(const FileDialog&) override { return {}; }
    String SaveFileDialog(const FileDialog&) override { return {}; }
    String SelectFolderDialog(StringView) override { return {}; }
    void Progress(StringView, Long, Long) override {}
    void Status(StringView) override {}
};

class AnyAssets : public ProjectAssets {
public:
    bool LoadFile(clsSymbolData&, Notices&) const override { return true; }
    void SetPlaceholder(clsSymbolData&) const override {}
    bool FontAvailable(StringView) const override { return true; }
    String DefaultFont() const override { return u"_sans"; }
    bool SubstituteAvailable() const override { return true; }
    void SetTextSize(clsSymbolData&) const override {}
};

}  // namespace tamber
