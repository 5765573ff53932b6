#include "app/fields/ProjectInfo.h"

#include <nlohmann/json.hpp>
#include <unordered_map>

#include "app/fields/CellNames.h"
#include "document/cells/clsCSV.h"
#include "document/elements/SymbolKinds.h"
#include "document/elements/clsLayerObjElement.h"
#include "document/elements/clsObjSprite.h"
#include "document/elements/clsObjText.h"
#include "document/elements/clsObjVector.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertyText.h"
#include "document/records/clsPropertyVector.h"
#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace tamber {

namespace {

using Json = nlohmann::ordered_json;

/// The cells that a record writes, row behind row.
template <class Record>
std::vector<std::string> CellsOf(const Record& record) {
    clsCSV csv;
    record.Save(csv);
    std::vector<std::string> cells;
    const Long lastRow = csv.Y();
    for (Long row = 0; row <= lastRow; ++row) {
        const Long width = row == lastRow ? csv.X() : csv.colS();
        for (Long column = 0; column < width; ++column)
            cells.push_back(ToNarrow(csv.GetValue(column, row)));
        while (row < lastRow && !cells.empty() && cells.back().empty()) cells.pop_back();
    }
    return cells;
}

/// A record's cells under their names; those beyond the names are listed under "more".
template <class Record>
Json Named(const Record& record, std::string_view names) {
    Json result = Json::object();
    Json more = Json::array();
    for (std::string& cell : CellsOf(record)) {
        const std::size_t end = names.find(',');
        if (names.empty())
            more.push_back(std::move(cell));
        else
            result[std::string(names.substr(0, end))] = std::move(cell);
        names.remove_prefix(end == std::string_view::npos ? names.size() : end + 1);
    }
    if (!more.empty()) result["more"] = std::move(more);
    return result;
}

Json CurveOf(const clsEdgingTable& table) {
    Json points = Json::array();
    for (const EdgingPoint& point : table.Points) points.push_back({point.X, point.Y});
    return points;
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
            {"EdgingTblXY", CurveOf(p.EdgingTblXY)},
            {"EdgingTblPrm", CurveOf(p.EdgingTblPrm)},
            {"filters", Named(*p.inFilter, FilterCellNames())},
            {"tweenPoints", PathOf(p)}};
}

Json KeyFrameOf(const clsLayerObject& object) {
    Json frame{{"StartFrame", object.StartFrame()}, {"DispCount", object.DispCount()},
               {"blTween", object.blTween},         {"blFixed", object.blFixed},
               {"blVisible", object.blVisible},     {"kind", object.SymbolType()}};
    if (object.Placement() != nullptr) frame["placement"] = PlacementOf(*object.Placement());
    if (const auto* vector = object.ObjectAs<clsObjVector>())
        frame["freeTransform"] = {{"blFreeTrans", vector->blFreeTrans},
                                  {"FreeTransPoints", vector->FreeTransPoints},
                                  {"blDivide", vector->blDivide}};
    if (const auto* text = object.ObjectAs<clsObjText>())
        frame["effect"] = Named(text->inEfElement, EffectCellNames());
    if (const auto* sprite = object.ObjectAs<clsObjSprite>())
        frame["effect"] = Named(sprite->inEfElement, EffectCellNames());
    if (object.Object && object.Placement() == nullptr)
        frame["values"] = Named(*object.Object, ElementCellNames(object.SymbolType()));
    return frame;
}

/// Folder depths of rows taken in order, each one more than its folder's.
template <class Row>
class FolderDepths {
public:
    Long Of(const Row& row) {
        const auto folder = row.ParentFolder();
        const Long depth = folder ? depths_[folder.get()] + 1 : 0;
        depths_[&row] = depth;
        return depth;
    }

private:
    std::unordered_map<const Row*, Long> depths_;
};

Json LayersOf(const Collection<clsLayer>& layers) {
    Json result = Json::array();
    FolderDepths<clsLayer> depths;
    for (const auto& layer : layers) {
        Json frames = Json::array();
        for (const auto& object : layer->colObject) frames.push_back(KeyFrameOf(*object));
        result.push_back({{"symbolID", layer->SymbolData()->ID},
                          {"kind", layer->SymbolData()->eType()},
                          {"LayerName", ToNarrow(layer->LayerName)},
                          {"InstanceName", ToNarrow(layer->InstanceName)},
                          {"ClippingDepth", layer->ClippingDepth},
                          {"eOnEvent", layer->eOnEvent},
                          {"script", Named(layer->inScript, ScriptCellNames())},
                          {"Visible", layer->Visible(true)},
                          {"folderDepth", depths.Of(*layer)},
                          {"keyFrames", std::move(frames)}});
    }
    return result;
}

/// The symbols that a record refers to, by their Index.
void AddReferences(Json& result, const clsSymbolData& symbol) {
    if (const auto* text = symbol.Property<clsPropertyText>())
        result["FitShapeIndex"] = text->FitShapeIndex();
    if (const auto* vector = symbol.Property<clsPropertyVector>())
        result["MorphIndex"] = vector->MorphIndex();
    if (const auto* button = symbol.Property<clsPropertyButton>()) {
        result["HitTestIndex"] = button->HitTestIndex();
        result["DownIndex"] = button->DownIndex();
        result["OverIndex"] = button->OverIndex();
        result["UpIndex"] = button->UpIndex();
    }
    if (const auto* koma = symbol.Property<clsPropertyKoma>()) {
        Json pictures = Json::array();
        for (const auto& picture : *koma->colKomas) pictures.push_back(picture->Index);
        result["colKomas"] = std::move(pictures);
    }
}

Json SymbolOf(const clsSymbolData& symbol, Long folderDepth) {
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
                {"folderDepth", folderDepth}};
    if (symbol.PropertyData()) {
        const auto* text = symbol.Property<clsPropertyText>();
        result["options"] =
            Named(*symbol.PropertyData(),
                  OptionCellNames(symbol.eType(), text != nullptr && text->blDynamic));
        result["width"] = symbol.PixelWidth();
        result["height"] = symbol.PixelHeight();
    }
    AddReferences(result, symbol);
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
    FolderDepths<clsSymbolData> depths;
    for (const auto& symbol : *project.colSymbol)
        symbols.push_back(SymbolOf(*symbol, depths.Of(*symbol)));
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
