#include "app/fields/ProjectInfo.h"

#include <nlohmann/json.hpp>
#include <unordered_map>

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

/// A Single as its cell shows it.
double Number(Single value) {
    return std::stod(ToNarrow(ToText(value)));
}

/// Takes fields as texts under their names; those without a name are listed under "more".
FieldSink Into(Json& result) {
    return [&result](StringView name, const String& value) {
        if (name.empty())
            result["more"].push_back(ToNarrow(value));
        else
            result[ToNarrow(name)] = ToNarrow(value);
    };
}

template <class Record>
Json Values(const Record& record);

Json ValueOf(Long value) {
    return value;
}
Json ValueOf(bool value) {
    return value;
}
Json ValueOf(Single value) {
    return Number(value);
}
Json ValueOf(StringView value) {
    return ToNarrow(value);
}
Json ValueOf(const String& value) {
    return ToNarrow(value);
}
Json ValueOf(const clsEdgingTable& table) {
    Json points = Json::array();
    for (const EdgingPoint& point : table.Points) points.push_back({point.X, point.Y});
    return points;
}
Json ValueOf(const Collection<clsTweenPointData>& path) {
    Json points = Json::array();
    for (const auto& point : path) points.push_back(Values(*point));
    return points;
}
/// A record within another, as texts.
template <HasFields Record>
Json ValueOf(const Record& record) {
    Json result = Json::object();
    TellFields(record, Into(result));
    return result;
}

/// The fields of a record as what they are.
template <class Record>
Json Values(const Record& record) {
    Json result = Json::object();
    const auto add = [&result](StringView name, const auto& value) {
        if constexpr (requires { ValueOf(value); })
            result[ToNarrow(name)] = ValueOf(value);
        else
            result[ToNarrow(name) + "s"] = value;
    };
    ForEachField<Record>([&](const auto& field) { field.Show(record, add); });
    return result;
}

Json KeyFrameOf(const clsLayerObject& object) {
    Json frame = Values(object);
    frame["kind"] = object.SymbolType();
    if (object.Placement() != nullptr) frame["placement"] = Values(*object.Placement());
    if (const auto* vector = object.ObjectAs<clsObjVector>())
        frame["freeTransform"] = Values(*vector);
    if (const auto* text = object.ObjectAs<clsObjText>()) frame.update(Values(*text));
    if (const auto* sprite = object.ObjectAs<clsObjSprite>()) frame.update(Values(*sprite));
    if (object.Object && object.Placement() == nullptr) {
        frame["values"] = Json::object();
        object.Object->TellFields(Into(frame["values"]));
    }
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
        Json row{{"symbolID", layer->SymbolData()->ID}, {"kind", layer->SymbolData()->eType()}};
        row.update(Values(*layer));
        row["eOnEvent"] = layer->eOnEvent;
        row["folderDepth"] = depths.Of(*layer);
        row["keyFrames"] = std::move(frames);
        result.push_back(std::move(row));
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
                {"file", ToNarrow(symbol.FilePathName)}};
    result.update(Values(symbol));
    result["folderDepth"] = folderDepth;
    if (symbol.PropertyData()) {
        result["options"] = Json::object();
        symbol.PropertyData()->TellFields(Into(result["options"]));
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
