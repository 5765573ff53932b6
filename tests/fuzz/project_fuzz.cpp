#include "document/ProjectReader.h"
#include "document/ProjectText.h"
#include "document/ProjectWriter.h"
#include "document/cells/clsCSV.h"
#include "platform/UserInterface.h"

namespace {

using namespace tamber;

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

Bytes Written(const Project& project) {
    clsCSV csv;
    SaveProjectCells(csv, project, u"/");
    return EncodeProjectText(csv, false);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Silent ui;
    const UserInterfaceScope scope(ui);
    Project project;
    const ProjectLoad load = LoadProjectBytes({data, size}, u"/project.kvf", project, AnyAssets());
    if (!load) {
        if (load.Told.empty()) __builtin_trap();
        return 0;
    }
    // What was written comes back as it was.
    const Bytes written = Written(project);
    Project again;
    if (!LoadProjectBytes(written, u"/project.kvf", again, AnyAssets()) ||
        Written(again) != written)
        __builtin_trap();
    return 0;
}
