#include "document/clsSymbolData.h"

#include "document/ClassNames.h"
#include "document/ProjectFileVersion.h"
#include "document/clsPropertyButton.h"
#include "document/clsPropertyClass.h"
#include "document/clsPropertyKoma.h"
#include "document/clsPropertyLinkSymbol.h"
#include "document/clsPropertyMovieEmp.h"
#include "document/clsPropertySprite.h"
#include "document/clsPropertySymbolFolder.h"
#include "document/clsPropertyText.h"
#include "document/clsPropertyVector.h"
#include "platform/UserInterface.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr Long VersionWithLinkClass = 0x70403;
constexpr std::size_t TextValueLength = 50;

/// The ID of a kind without a number of its own, 0 for the others.
Long FixedId(Long kind) {
    switch (kind) {
        case KindBackGround:
            return -1;
        case KindFrameLabel:
            return -2;
        case KindFrameAction:
            return -3;
        case KindLayerFolder:
            return -4;
        case KindClass:
            return -5;
        default:
            return 0;
    }
}

String TextValue(const clsPropertyText& text) {
    String shown = text.InitialText.substr(0, TextValueLength);
    shown = ReplaceAll(ReplaceAll(shown, vbCrLf, u"↓"), u"\n", u"↓");
    shown = ReplaceAll(shown, u"\r", u"←");
    return (text.blDynamic ? text.VariableName : String()) + u"[" + shown + u"]";
}

String RecordMark(const clsPropertyData* record) {
    if (const auto* text = dynamic_cast<const clsPropertyText*>(record)) {
        const String mark = text->blDynamic ? u"*" : text->FitShapeSymbol() ? u"~" : u"";
        return (text->blFlashType ? u"$" : u"") + mark;
    }
    if (const auto* vector = dynamic_cast<const clsPropertyVector*>(record)) {
        String mark;
        if (const auto target = vector->MorphSymbol()) {
            const auto* drawing = target->Property<clsPropertyVector>();
            mark = drawing != nullptr && drawing->blDivide ? u"#" : u"*";
        }
        return (vector->blLineOption ? u"$" : u"") + mark;
    }
    return {};
}

}  // namespace

void clsSymbolData::eType(Long kind) {
    kind_ = kind;
    property_ = MakePropertyData(kind);
    if (const Long fixed = FixedId(kind); fixed != 0) ID = fixed;
}

Long clsSymbolData::eTypeEx() const {
    if (const auto* link = Property<clsPropertyLinkSymbol>()) return link->eTypeEx();
    if (const auto* folder = Property<clsPropertySymbolFolder>())
        return folder->Expand ? KindSymbolFolderExpanded : KindSymbolFolder;
    return kind_;
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
    if (auto* button = Property<clsPropertyButton>()) button->AutoHitTestSymbol.reset();
}

String clsSymbolData::TypeTextEx() const {
    if (const auto* link = Property<clsPropertyLinkSymbol>()) return link->TypeTextEx();
    return kind_ == KindSymbolFolder ? String(u"ﾌｫﾙﾀﾞ") : TypeText();
}

String clsSymbolData::Value() const {
    switch (kind_) {
        case KindBackGround:
            return u"背景";
        case KindFrameLabel:
            return u"フレームラベル";
        case KindText:
            return TextValue(*Property<clsPropertyText>());
        case KindSprite:
            return Property<clsPropertySprite>()->SpriteName;
        case KindMovieEmp:
            return Property<clsPropertyMovieEmp>()->MovieName;
        case KindFrameAction:
            return u"フレームアクション";
        case KindButton:
            return Property<clsPropertyButton>()->ButtonName;
        case KindKoma:
            return Property<clsPropertyKoma>()->KomaName;
        case KindSymbolFolder:
            return Property<clsPropertySymbolFolder>()->FolderName;
        case KindClass: {
            const auto* record = Property<clsPropertyClass>();
            return record->Extends.empty() ? record->className
                                           : record->className + u"：" + record->Extends;
        }
        case KindLayerFolder:
            return u"フォルダ";
        case KindLink:
            return Property<clsPropertyLinkSymbol>()->SymbolName;
        default:
            return GetFileName(FilePathName);
    }
}

String clsSymbolData::ExportName() const {
    if (!ObjectName.empty()) return ObjectName;
    if (const auto* record = Property<clsPropertyClass>())
        return String(ClassExportPrefix) + record->className;
    return Value();
}

bool clsSymbolData::blExportEx() const {
    if (const auto* text = Property<clsPropertyText>())
        return blExport && (text->blDynamic || !text->FitShapeSymbol());
    return blExport;
}

String clsSymbolData::ListName() const {
    return blExportEx() ? Value() + u" {書き出し：" + ExportName() + u"}" : Value();
}

String clsSymbolData::OptionText() const {
    if (const auto* link = Property<clsPropertyLinkSymbol>())
        return RecordMark(link->objPropertyData.get());
    return RecordMark(property_.get());
}

Long clsSymbolData::BackColor() const {
    switch (kind_) {
        case KindFrameLabel:
            return ColorLong(230, 240, 255);
        case KindFrameAction:
            return ColorLong(255, 238, 255);
        case KindLayerFolder:
            return ColorLong(255, 255, 220);
        default:
            return ColorLong(255, 255, 255);
    }
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
    if (auto* own = Property<clsPropertySymbolFolder>()) own->LayerCount += count;
    for (auto folder = ParentFolder(); folder; folder = folder->ParentFolder())
        if (auto* record = folder->Property<clsPropertySymbolFolder>()) record->LayerCount += count;
}

std::shared_ptr<clsSymbolData> clsSymbolData::Copy() const {
    auto copy = std::make_shared<clsSymbolData>(kind_);
    copy->FilePathName = FilePathName;
    if (property_) property_->CopyTo(*copy->property_);
    return copy;
}

void clsSymbolData::Load(clsCSV& csv, StringView baseDir) {
    ID = csv.TakeLong();
    const String file = PathFromCell(csv.TakeText());
    eType(SymbolKindFromText(csv.TakeText()));
    const bool drive = file.size() >= 3 && (file[0] | 0x20) >= u'a' && (file[0] | 0x20) <= u'z' &&
                       file[1] == u':' && (file[2] == u'\\' || file[2] == u'/');
    if (file.empty())
        FilePathName.clear();
    else
        FilePathName = drive || file.starts_with(PathSeparator)
                           ? file
                           : NormalizePath(JoinPath(baseDir, file));
    ObjectName = csv.TakeText();
    if (ProjectFileVersion >= VersionWithLinkClass) LinkClassName = csv.TakeText();
    const String word = csv.TakeText();
    blExport = word == u"Export" || word == u"ExportTop";
    blExportTop = word != u"Export";
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
    csv.Put(ID);
    csv.Put(FilePathName.empty() ? String() : PathToCell(MakeRelativePath(baseDir, FilePathName)));
    csv.Put(TypeText());
    csv.Put(ObjectName);
    csv.Put(LinkClassName);
    csv.Put(!blExport     ? StringView()
            : blExportTop ? StringView(u"ExportTop")
                          : StringView(u"Export"));
    if (property_) property_->Save(csv);
    csv.CrLf();
}

}  // namespace tamber
