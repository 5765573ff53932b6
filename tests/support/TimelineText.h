#pragma once

#include <memory>
#include <sstream>
#include <string>

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsLayerFolder.h"
#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/codepage.h"

namespace tamber {

/// Key frames as text: "1-5 6-10T 12-20F" are first and last frames with the flags tween (T), fixed
/// (F) and empty (E).
inline std::string Spans(const clsLayer& layer) {
    std::string text;
    for (const auto& object : layer.colObject) {
        if (!text.empty()) text += ' ';
        text += std::to_string(object->StartFrame()) + "-" + std::to_string(object->endFrame());
        if (object->blTween) text += 'T';
        if (object->blFixed) text += 'F';
        if (!object->blVisible) text += 'E';
    }
    return text;
}

/// A layer of a new symbol of the kind, with the key frames of such a text.
inline std::shared_ptr<clsLayer> LayerOf(Long kind, const std::string& spans) {
    auto layer = std::make_shared<clsLayer>();
    layer->SymbolData(std::make_shared<clsSymbolData>(kind));
    std::istringstream words(spans);
    for (std::string word; words >> word;) {
        const std::size_t dash = word.find('-');
        Long index = 0;
        layer->Add(std::stoi(word.substr(0, dash)), nullptr, index);
        clsLayerObject& object = *layer->Object(index);
        object.endFrame(std::stoi(word.substr(dash + 1)));
        object.blTween = word.find('T') != std::string::npos;
        object.blFixed = word.find('F') != std::string::npos;
        object.blVisible = word.find('E') == std::string::npos;
    }
    return layer;
}

/// Names of rows with their depths: "a folder(2) >b >c d" is a folder that counts two rows, which
/// stand in it.
inline std::string Rows(const Collection<clsLayer>& layers) {
    std::string text;
    for (const auto& layer : layers) {
        if (!text.empty()) text += ' ';
        text += std::string(static_cast<std::size_t>(layer->FolderDepth()), '>') +
                ToNarrow(layer->LayerName);
        if (const auto* folder = layer->Folder())
            text += "(" + std::to_string(folder->LayerCount) + ")";
    }
    return text;
}

}  // namespace tamber
