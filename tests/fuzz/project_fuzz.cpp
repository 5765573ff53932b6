#include "document/ProjectText.h"
#include "document/ProjectWriter.h"
#include "document/cells/clsCSV.h"
#include "tests/fuzz/AnyProject.h"

namespace {

using namespace tamber;

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
