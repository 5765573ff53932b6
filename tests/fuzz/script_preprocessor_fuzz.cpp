#include <stdlib.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>

#include "platform/codepage.h"
#include "platform/paths.h"
#include "script/ScriptPreprocessor.h"

namespace {

using namespace tamber;

constexpr std::size_t FileCount = 4;
/// Parts the script and the files in the input.
constexpr Byte Separator = 0xFF;

/// Where files lie in memory, if the machine has such a place: on a disk each file that is written
/// anew waits for it, which takes longer than the run.
std::filesystem::path FolderOfFiles() {
    const std::filesystem::path memory = "/dev/shm";
    return std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
}

/// A project's folder with the files a, b, c and sub/d, which may include each other.
class Project {
public:
    Project() {
        std::string folder = (FolderOfFiles() / "includesXXXXXX").string();
        if (mkdtemp(folder.data()) == nullptr) abort();
        folder_ = FromNarrow(folder);
        MakeFolders(folder_ + u"/sub");
        ProgramFolder(folder_ + u"/sub");
        for (std::size_t i = 0; i < FileCount; ++i) Write(i, ByteView(&Separator, 1));
    }
    ~Project() { std::filesystem::remove_all(ToNarrow(folder_)); }

    const String& Folder() const { return folder_; }
    void Write(std::size_t number, ByteView bytes) {
        constexpr std::array<const char*, FileCount> names{"/a", "/b", "/c", "/sub/d"};
        if (std::ranges::equal(bytes, contents_[number])) return;
        contents_[number].assign(bytes.begin(), bytes.end());
        std::ofstream file(ToNarrow(folder_) + names[number], std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
    }

private:
    String folder_;
    std::array<Bytes, FileCount> contents_;
};

ByteView TakePart(ByteView& bytes) {
    std::size_t end = 0;
    while (end < bytes.size() && bytes[end] != Separator) ++end;
    const ByteView part = bytes.first(end);
    bytes = bytes.subspan(std::min(end + 1, bytes.size()));
    return part;
}

Long LinesOf(StringView text) {
    Long lines = 1;
    for (const char16_t c : text)
        if (c == u'\r' || c == u'\n') ++lines;
    return lines;
}

}  // namespace

// The script, then the files, each behind a byte FF. The first byte chooses whether what is
// included is compiled apart.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Project project;
    if (size == 0) return 0;
    const bool apart = (data[0] & 1) != 0;
    ByteView rest(data + 1, size - 1);
    const String script = DecodeAnsi(TakePart(rest));
    for (std::size_t i = 0; i < FileCount; ++i) project.Write(i, TakePart(rest));
    ScriptPreprocessor preprocessor;
    preprocessor.ProjectFolder = project.Folder();
    if (apart)
        preprocessor.CompileInclude = [](const String& text) { return text.size() % 7 != 0; };
    String expanded = script;
    const Long result = preprocessor.PreprocessScript(expanded, {});
    if (std::abs(result) > LinesOf(script)) __builtin_trap();
    if (result != 0 && expanded != script) __builtin_trap();
    if (result < 0 && preprocessor.Chain().empty()) __builtin_trap();
    if (result == 0 && !preprocessor.Chain().empty()) __builtin_trap();
    return 0;
}
