#pragma once

#include <memory>
#include <sstream>
#include <string>

#include "document/edit/SymbolLibrary.h"
#include "document/elements/SymbolKinds.h"
#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertySymbolFolder.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/codepage.h"

namespace tamber {

/// Rows of a library as text: "3 F(2) >7 >6s" are IDs with their depths; F is a folder that counts
/// two rows and f a collapsed one, s marks a sprite, any other row is a picture.
inline std::string LibraryText(const Collection<clsSymbolData>& library) {
    std::string text;
    for (const auto& symbol : library) {
        if (!text.empty()) text += ' ';
        text += std::string(static_cast<std::size_t>(symbol->FolderDepth()), '>');
        if (const auto* folder = symbol->Property<clsPropertySymbolFolder>())
            text += (folder->Expand ? "F(" : "f(") + std::to_string(folder->LayerCount) + ")";
        else
            text += std::to_string(symbol->ID);
        if (symbol->eType() == KindSprite) text += 's';
    }
    return text;
}

/// A library from such a text, numbered. Depths are left out: the folders' counts tell them.
inline std::shared_ptr<Collection<clsSymbolData>> LibraryFrom(const std::string& text) {
    auto library = std::make_shared<Collection<clsSymbolData>>();
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        word.erase(0, word.find_first_not_of('>'));
        const bool isFolder = word[0] == 'F' || word[0] == 'f';
        auto symbol = std::make_shared<clsSymbolData>(isFolder             ? KindSymbolFolder
                                                      : word.back() == 's' ? KindSprite
                                                                           : KindBitmap);
        if (auto* folder = symbol->Property<clsPropertySymbolFolder>()) {
            folder->LayerCount = std::stoi(word.substr(2));
            folder->Expand = word[0] == 'F';
        } else {
            symbol->ID = std::stoi(word);
        }
        library->Add(std::move(symbol));
    }
    NumberSymbols(*library);
    return library;
}

}  // namespace tamber
