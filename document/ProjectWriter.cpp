#include "document/ProjectWriter.h"

#include <vector>

#include "document/AppVersion.h"
#include "document/ProjectText.h"
#include "document/cells/clsCSV.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertyText.h"
#include "document/records/clsPropertyVector.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr Long ErrorPathFileAccess = 75;

void SaveHtml(clsCSV& csv, const HtmlSettings& html) {
    csv.Put(u"HTML");
    for (const String& value : {html.SizeUnit, html.WIDTH, html.HEIGHT, html.align, html.salign})
        csv.Put(value);
    for (const bool flag : {html.play, html.loop, html.menu}) csv.Put(flag);
    for (const String& value : {html.quality, html.wmode, html.scale}) csv.Put(value);
    csv.Put(html.NamedAnchors);
    csv.CrLf();
}

/// One row of a symbol's references to others, for the kinds that have any.
void SaveReferences(clsCSV& csv, const clsSymbolData& symbol) {
    if (const auto* text = symbol.Property<clsPropertyText>()) {
        csv.Put(text->FitShapeIndex());
    } else if (const auto* vector = symbol.Property<clsPropertyVector>()) {
        csv.Put(vector->MorphIndex());
    } else if (const auto* button = symbol.Property<clsPropertyButton>()) {
        csv.Put(button->HitTestIndex());
        csv.Put(button->DownIndex());
        csv.Put(button->OverIndex());
        csv.Put(button->UpIndex());
    } else if (const auto* koma = symbol.Property<clsPropertyKoma>()) {
        for (const auto& picture : *koma->colKomas) csv.Put(picture->Index);
    } else {
        return;
    }
    csv.CrLf();
}

void SaveLayers(clsCSV& csv, const Collection<clsLayer>& layers) {
    csv.Put(layers.Count());
    csv.CrLf();
    for (const auto& layer : layers) layer->Save(csv);
}

}  // namespace

void SaveProjectCells(clsCSV& csv, const Project& project, StringView baseDir) {
    std::vector<String> head{u"KVF", ToText(AppVersion.Major), ToText(AppVersion.Minor),
                             ToText(AppVersion.Revision)};
    if (AppVersion.Build != 0) head.push_back(ToText(AppVersion.Build));
    csv.Clip(head);
    csv.Down();
    csv.Put(project.MainWidth);
    csv.Put(project.MainHeight);
    csv.Put(project.FrameRate);
    csv.Put(project.SWFVersion);
    csv.CrLf();
    if (project.Html) SaveHtml(csv, *project.Html);
    csv.Put(project.colSymbol->Count());
    csv.CrLf();
    for (const auto& symbol : *project.colSymbol) symbol->Save(csv, baseDir);
    for (const auto& symbol : *project.colSymbol) SaveReferences(csv, *symbol);
    for (const auto& symbol : *project.colSymbol)
        if (const auto* sprite = symbol->Property<clsPropertySprite>())
            SaveLayers(csv, *sprite->colLayer);
    SaveLayers(csv, *project.colMainLayer);
}

bool SaveProject(StringView path, const Project& project, RuntimeError* why) {
    try {
        const String folder = FolderOfFile(path);
        clsCSV csv;
        SaveProjectCells(csv, project, folder);
        const Bytes bytes = EncodeProjectText(csv, EqualsNoCase(GetFileExt(path), u"kvfz"));
        const bool hasFolder = folder.empty() || FolderExists(folder) || MakeFolders(folder);
        if (hasFolder && WriteFileBytes(bytes, path)) return true;
        throw RuntimeError(
            ErrorPathFileAccess, u"SaveProject",
            String(path) + u"\r\n" + (hasFolder ? WriteFault() : u"フォルダを作成できません。"));
    } catch (const RuntimeError& error) {
        if (why != nullptr) *why = error;
    } catch (const std::bad_alloc&) {
        if (why != nullptr)
            *why = RuntimeError(ErrorOutOfMemory, u"SaveProject", u"メモリ不足です。");
    }
    return false;
}

}  // namespace tamber
