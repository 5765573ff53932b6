#include "document/symbols/clsSymbolData.h"

#include "platform/UserInterface.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

/// The file that a cell tells, against the project's folder.
String FileOfCell(StringView cell, StringView baseDir) {
    const String file = PathFromCell(cell);
    const bool drive = file.size() >= 3 && (file[0] | 0x20) >= u'a' && (file[0] | 0x20) <= u'z' &&
                       file[1] == u':' && (file[2] == u'\\' || file[2] == u'/');
    if (file.empty() || drive || file.starts_with(PathSeparator)) return file;
    return NormalizePath(JoinPath(baseDir, file));
}

String CellOfFile(StringView file, StringView baseDir) {
    return file.empty() ? String() : PathToCell(MakeRelativePath(baseDir, file));
}

std::vector<String> CellsOfRow(const clsCSV& csv) {
    std::vector<String> cells;
    for (Long col = 0; col < csv.RowLength(csv.Y()); ++col) cells.emplace_back(csv.GetValue(col));
    return cells;
}

/// The row as it was read, where it still tells the number and the file.
void SaveUnknown(const clsSymbolData& symbol, clsCSV& csv, StringView baseDir) {
    std::vector<String> cells = symbol.UnknownCells;
    cells[0] = ToText(symbol.ID);
    if (cells.size() > 1 && FileOfCell(cells[1], baseDir) != symbol.FilePathName)
        cells[1] = CellOfFile(symbol.FilePathName, baseDir);
    for (const String& cell : cells) csv.Put(cell);
    csv.CrLf();
}

}  // namespace

void clsSymbolData::eType(Long kind) {
    kind_ = kind;
    property_ = MakePropertyData(kind);
    if (const Long fixed = KindOf(kind).FixedId; fixed != 0) ID = fixed;
}

Long clsSymbolData::eTypeEx() const {
    return property_ ? property_->eTypeEx() : kind_;
}

void clsSymbolData::PropertyData(std::shared_ptr<clsPropertyData> record) {
    if (!record || !property_ || record->eType() != property_->eType()) {
        ShowMessage(u"シンボルのタイプが違います。");
        return;
    }
    property_ = std::move(record);
}

void clsSymbolData::InitDefineID() {
    defined_ = {};
}

String clsSymbolData::TypeTextEx() const {
    return property_ ? property_->TypeTextEx() : TypeText();
}

String clsSymbolData::Value() const {
    if (const auto name = property_ ? property_->Name() : std::nullopt) return *name;
    const StringView fixed = KindOf(kind_).FixedName;
    return fixed.empty() ? GetFileName(FilePathName) : String(fixed);
}

String clsSymbolData::ExportName() const {
    if (!ObjectName.empty()) return ObjectName;
    if (const auto name = property_ ? property_->LinkageName() : std::nullopt) return *name;
    return Value();
}

bool clsSymbolData::blExportEx() const {
    return blExport && (!property_ || property_->CanExport());
}

String clsSymbolData::ListName() const {
    return blExportEx() ? Value() + u" {書き出し：" + ExportName() + u"}" : Value();
}

String clsSymbolData::OptionText() const {
    return property_ ? property_->OptionText() : String();
}

Long clsSymbolData::TypeColor() const {
    return kind_ == KindSprite && !LinkClassName.empty() && blExport ? ColorLong(255, 0, 0) : 0;
}

Long clsSymbolData::FolderDepth() const {
    Long depth = 0;
    for (auto folder = ParentFolder(); folder; folder = folder->ParentFolder()) ++depth;
    return depth;
}

void clsSymbolData::AddInFolder(Long count) {
    if (property_) property_->AddRows(count);
    for (auto folder = ParentFolder(); folder; folder = folder->ParentFolder())
        folder->property_->AddRows(count);
}

std::shared_ptr<clsSymbolData> clsSymbolData::Copy() const {
    auto copy = std::make_shared<clsSymbolData>(kind_);
    copy->FilePathName = FilePathName;
    copy->UnknownCells = UnknownCells;
    if (property_) property_->CopyTo(*copy->property_);
    return copy;
}

void clsSymbolData::Load(clsCSV& csv, StringView baseDir) {
    ID = csv.TakeLong();
    FilePathName = FileOfCell(csv.TakeText(), baseDir);
    eType(SymbolKindFromText(csv.TakeText()));
    UnknownCells = kind_ == 0 ? CellsOfRow(csv) : std::vector<String>();
    LoadFields(*this, csv);
    if (kind_ == KindButton) {
        // A button has no linkage, whatever its cells hold.
        ObjectName.clear();
        LinkClassName.clear();
        blExport = false;
        blExportTop = true;
    }
    if (property_) property_->Load(csv);
}

void clsSymbolData::Save(clsCSV& csv, StringView baseDir) const {
    if (!UnknownCells.empty()) {
        SaveUnknown(*this, csv, baseDir);
        return;
    }
    csv.Put(ID);
    csv.Put(CellOfFile(FilePathName, baseDir));
    csv.Put(TypeText());
    SaveFields(*this, csv);
    if (property_) property_->Save(csv);
    csv.CrLf();
}

}  // namespace tamber
