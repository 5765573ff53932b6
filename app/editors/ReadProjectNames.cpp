#include "app/editors/ReadProjectNames.h"

#include <set>

#include "canvas/timeline/FrameLabels.h"
#include "document/elements/SymbolKinds.h"
#include "document/elements/clsObjFrameAction.h"
#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertySprite.h"
#include "platform/TextEncoding.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace tamber {

namespace {

/// Bytes of a class file that is read.
constexpr std::uint64_t LongestFile = 1 << 20;

String TypeOf(const clsSymbolData& symbol) {
    switch (symbol.eTypeEx()) {
        case KindText:
            return u"TextField";
        case KindButton:
            return u"Button";
        case KindMovie:
        case KindMovieEmp:
            return u"Video";
        default:
            return symbol.LinkClassName.empty() ? String(u"MovieClip") : symbol.LinkClassName;
    }
}

class NameReader {
public:
    void ReadTimeline(const Collection<clsLayer>& layers) {
        for (const auto& layer : layers)
            if (layer->blInstance() && !layer->InstanceName.empty())
                Add(names_.Instances, layer->InstanceName, Candidate::KindOf::Instance,
                    TypeOf(*layer->SymbolData()));
        for (FrameLabel& label : FrameLabels(layers))
            Add(names_.Labels, std::move(label.Name), Candidate::KindOf::Label, {});
    }
    void ReadSymbol(const clsSymbolData& symbol) {
        if (symbol.blExportEx())
            Add(names_.Linkages, symbol.ExportName(), Candidate::KindOf::Label, {});
        if (const auto* sprite = symbol.Property<clsPropertySprite>())
            ReadTimeline(*sprite->colLayer);
        if (const auto* record = symbol.Property<clsPropertyClass>()) ReadClass(*record);
    }
    void ReadClassFiles(StringView folder) {
        for (const String& file : ListFiles(folder, u"*.as")) {
            Bytes bytes;
            if (ReadFileBytes(JoinPath(folder, file), bytes, 0, LongestFile))
                names_.Classes.try_emplace(GetFileBase(file), ScriptClass::Read(DecodeText(bytes)));
        }
    }
    ProjectNames Take() { return std::move(names_); }

private:
    void Add(std::vector<Candidate>& list, String name, Candidate::KindOf kind, String detail) {
        if (known_.emplace(&list, name).second)
            list.push_back({std::move(name), kind, std::move(detail)});
    }
    void ReadClass(const clsPropertyClass& record) {
        String body;
        for (const auto& layer : *record.colLayer)
            for (const auto& object : layer->colObject)
                if (const auto* action = object->ObjectAs<clsObjFrameAction>())
                    body += action->inScript.ScriptText + u"\r\n";
        ScriptClass read = ScriptClass::Read(body);
        read.Extends = record.Extends;
        names_.Classes.insert_or_assign(record.className, std::move(read));
    }

    ProjectNames names_;
    std::set<std::pair<const void*, String>> known_;
};

}  // namespace

ProjectNames ReadProjectNames(const Project& project, StringView classFolder) {
    NameReader reader;
    reader.ReadTimeline(*project.colMainLayer);
    for (const auto& symbol : *project.colSymbol) reader.ReadSymbol(*symbol);
    if (!classFolder.empty()) reader.ReadClassFiles(classFolder);
    return reader.Take();
}

}  // namespace tamber
