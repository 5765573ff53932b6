#pragma once

#include <array>
#include <memory>
#include <vector>

#include "document/elements/SymbolKinds.h"
#include "document/symbols/clsPropertyData.h"
#include "platform/types.h"

namespace tamber {

/// The two switches of an export in one word.
struct ExportWord : AlwaysWritten {
    template <class Owner, class Fields>
    static void Load(Owner& owner, clsCSV& csv, const Fields& fields) {
        const auto& [exported, onTop] = fields;
        const String word = csv.TakeText();
        owner.*exported.Member = word == u"Export" || word == u"ExportTop";
        owner.*onTop.Member = word != u"Export";
    }
    template <class Owner, class Fields>
    static void Save(const Owner& owner, clsCSV& csv, const Fields& fields) {
        const auto& [exported, onTop] = fields;
        const StringView word = owner.*onTop.Member ? u"ExportTop" : u"Export";
        csv.Put(owner.*exported.Member ? word : StringView());
    }
};

/// An entry of the library, or the head of a layer that shows no library entry.
class clsSymbolData {
public:
    /// Position in the library, 0 for a symbol outside it.
    Long Index = 0;
    /// The number the user sees, from 1.
    Long ID = -1;
    /// Absolute path of the source file, empty for a symbol without one.
    String FilePathName;
    /// Linkage name given by the user.
    String ObjectName;
    /// Class linked to a sprite.
    String LinkClassName;
    /// Of an entry whose kind a file names by an unknown word: the cells of its row, which a save
    /// writes back. Else empty.
    std::vector<String> UnknownCells;
    bool blExport = false;
    bool blExportTop = true;
    /// Which slot `DefineID` reads and writes: 0, 1, else 2.
    Long DefineNum = 0;

    clsSymbolData() = default;
    explicit clsSymbolData(Long kind) { eType(kind); }

    Long eType() const { return kind_; }
    /// Makes a new property record of the kind.
    void eType(Long kind);
    /// The kind, with a link's target and an expanded folder told apart.
    Long eTypeEx() const;
    const std::shared_ptr<clsPropertyData>& PropertyData() const { return property_; }
    /// A record of another class is refused with a message.
    void PropertyData(std::shared_ptr<clsPropertyData> record);
    /// The record as its class, or null when it is of another.
    template <class T>
    T* Property() const {
        return dynamic_cast<T*>(property_.get());
    }
    std::shared_ptr<clsSymbolData> ParentFolder() const { return parent_.lock(); }
    void ParentFolder(const std::shared_ptr<clsSymbolData>& folder) { parent_ = folder; }

    Long DefineID() const { return defined_[Slot()]; }
    void DefineID(Long id) { defined_[Slot()] = id; }
    /// Clears what a generation left.
    void InitDefineID();

    String TypeText() const { return String(SymbolKindText(kind_)); }
    String TypeTextEx() const;
    /// Name to display.
    String Value() const;
    /// Linkage name in use.
    String ExportName() const;
    bool blExportEx() const;
    /// Name as the list of the library shows it, with the linkage name of an exported symbol.
    String ListName() const;
    /// Mark in the list.
    String OptionText() const;
    /// Colours of the list row, red in the low byte.
    Long BackColor() const { return KindOf(kind_).BackColor; }
    Long TypeColor() const;
    Long FolderDepth() const;
    /// Adds to the row count of this folder and of those above it.
    void AddInFolder(Long count);
    Long PixelWidth() const { return property_ ? property_->PixelWidth() : 0; }
    Long PixelHeight() const { return property_ ? property_->PixelHeight() : 0; }

    /// A symbol of the same kind, file and record, without ID and name.
    std::shared_ptr<clsSymbolData> Copy() const;
    /// `baseDir` is the project's folder, against which the file's path is relative.
    void Load(clsCSV& csv, StringView baseDir);
    void Save(clsCSV& csv, StringView baseDir) const;

    /// Behind the number, the file and the kind.
    static constexpr auto Fields() {
        using T = clsSymbolData;
        constexpr FromVersion WithLinkClass(0x70403);
        return std::tuple{
            Field(u"ObjectName", &T::ObjectName),
            Group(WithLinkClass, Field(u"LinkClassName", &T::LinkClassName)),
            Group(ExportWord(), Field(u"blExport", &T::blExport),
                  Field(u"blExportTop", &T::blExportTop)),
        };
    }

private:
    std::size_t Slot() const { return DefineNum == 0 ? 0 : DefineNum == 1 ? 1 : 2; }

    Long kind_ = 0;
    std::shared_ptr<clsPropertyData> property_;
    std::weak_ptr<clsSymbolData> parent_;
    std::array<Long, 3> defined_{};
};

}  // namespace tamber
