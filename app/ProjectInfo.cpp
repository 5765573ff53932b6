#include "app/ProjectInfo.h"

#include <nlohmann/json.hpp>

#include "document/SymbolKinds.h"
#include "document/clsCSV.h"
#include "document/clsLayer.h"
#include "document/clsLayerObjElement.h"
#include "document/clsPropertySprite.h"
#include "document/clsSymbolData.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace tamber {

namespace {

using Json = nlohmann::ordered_json;

/// The cells that a record writes, row behind row.
template <class Record>
Json CellsOf(const Record& record) {
    clsCSV csv;
    record.Save(csv);
    Json cells = Json::array();
    const Long lastRow = csv.Y();
    for (Long row = 0; row <= lastRow; ++row) {
        for (Long column = 0; column < csv.colS(); ++column) {
            const String cell(csv.GetValue(column, row));
            cells.push_back(ToNarrow(cell));
        }
        while (!cells.empty() && cells.back() == "") cells.erase(cells.size() - 1);
    }
    return cells;
}

/// A Single as its cell shows it.
double Number(Single value) {
    return std::stod(ToNarrow(ToText(value)));
}

Json PathOf(const clsLayerObjElement& placement) {
    Json points = Json::array();
    for (const auto& point : placement.colTweenPoint)
        points.push_back({{"type", point->PointType == 0 ? "On" : "Off"},
                          {"x", Number(point->X)},
                          {"y", Number(point->Y)}});
    return points;
}

Json PlacementOf(const clsLayerObjElement& p) {
    return {{"X", Number(p.X())},
            {"Y", Number(p.Y())},
            {"OffsetX", Number(p.OffsetX())},
            {"OffsetY", Number(p.OffsetY())},
            {"ScaleX", Number(p.ScaleX())},
            {"ScaleY", Number(p.ScaleY())},
            {"Bright", p.Bright},
            {"Toumei", p.Toumei},
            {"Angle", Number(p.Angle())},
            {"SkewX", Number(p.SkewX())},
            {"SkewY", Number(p.SkewY())},
            {"Edging", p.Edging},
            {"blCustomEdging", p.blCustomEdging},
            {"EdgingAllMode", p.EdgingAllMode},
            {"eBlend", p.eBlend},
            {"filters", CellsOf(*p.inFilter)},
            {"tweenPoints", PathOf(p)}};
}

Json KeyFrameOf(const clsLayerObject& object) {
    Json frame{{"StartFrame", object.StartFrame()}, {"DispCount", object.DispCount()},
               {"blTween", object.blTween},         {"blFixed", object.blFixed},
               {"blVisible", object.blVisible},     {"kind", object.SymbolType()}};
    if (object.Placement() != nullptr) frame["placement"] = PlacementOf(*object.Placement());
    if (object.Object) frame["cells"] = CellsOf(*object.Object);
    return frame;
}

Json LayersOf(const Collection<clsLayer>& layers) {
    Json result = Json::array();
    for (const auto& layer : layers) {
        Json frames = Json::array();
        for (const auto& object : layer->colObject) frames.push_back(KeyFrameOf(*object));
        result.push_back({{"symbolID", layer->SymbolData()->ID},
                          {"kind", layer->SymbolData()->eType()},
                          {"LayerName", ToNarrow(layer->LayerName)},
                          {"InstanceName", ToNarrow(layer->InstanceName)},
                          {"ClippingDepth", layer->ClippingDepth},
                          {"eOnEvent", layer->eOnEvent},
                          {"script", CellsOf(layer->inScript)},
                          {"Visible", layer->Visible(true)},
                          {"folderDepth", layer->FolderDepth()},
                          {"keyFrames", std::move(frames)}});
    }
    return result;
}

Json SymbolOf(const clsSymbolData& symbol) {
    Json result{{"Index", symbol.Index},
                {"kind", symbol.eType()},
                {"type", ToNarrow(symbol.TypeText())},
                {"ID", symbol.ID},
                {"name", ToNarrow(symbol.Value())},
                {"file", ToNarrow(symbol.FilePathName)},
                {"ObjectName", ToNarrow(symbol.ObjectName)},
                {"LinkClassName", ToNarrow(symbol.LinkClassName)},
                {"blExport", symbol.blExport},
                {"blExportTop", symbol.blExportTop},
                {"folderDepth", symbol.FolderDepth()}};
    if (symbol.PropertyData()) {
        result["options"] = CellsOf(*symbol.PropertyData());
        result["width"] = symbol.PixelWidth();
        result["height"] = symbol.PixelHeight();
    }
    if (const auto* sprite = symbol.Property<clsPropertySprite>())
        result["layers"] = LayersOf(*sprite->colLayer);
    return result;
}

std::string Count(Long number, const char* what) {
    return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

}  // namespace

std::string ProjectInfoJson(const Project& project) {
    Json symbols = Json::array();
    for (const auto& symbol : *project.colSymbol) symbols.push_back(SymbolOf(*symbol));
    const Json info{{"width", project.MainWidth},
                    {"height", project.MainHeight},
                    {"frameRate", Number(project.FrameRate)},
                    {"swfVersion", project.SWFVersion},
                    {"symbols", std::move(symbols)},
                    {"layers", LayersOf(*project.colMainLayer)}};
    return info.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string ProjectInfoText(const Project& project) {
    std::string text = "stage " + std::to_string(project.MainWidth) + " x " +
                       std::to_string(project.MainHeight) + ", " +
                       ToNarrow(ToText(project.FrameRate)) + " frames a second, SWF " +
                       std::to_string(project.SWFVersion) + "\n";
    text += Count(project.colSymbol->Count(), "symbol") + "\n";
    for (const auto& symbol : *project.colSymbol)
        text += "  " + std::to_string(symbol->ID) + "  " + ToNarrow(symbol->TypeText()) + "  " +
                ToNarrow(symbol->Value()) + "\n";
    text += Count(project.colMainLayer->Count(), "layer") + "\n";
    for (const auto& layer : *project.colMainLayer)
        text += "  " + ToNarrow(layer->SymbolData()->TypeText()) + "  " +
                ToNarrow(layer->LayerNameView()) + "  " + Count(layer->ObjectCount(), "key frame") +
                "\n";
    return text;
}

}  // namespace tamber
