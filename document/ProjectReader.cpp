#include "document/ProjectReader.h"

#include <algorithm>
#include <limits>
#include <new>
#include <set>
#include <stdexcept>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "document/ProjectText.h"
#include "document/SymbolFiles.h"
#include "document/cells/ProjectFileVersion.h"
#include "document/cells/clsCSV.h"
#include "document/records/SymbolContents.h"
#include "document/records/clsPropertyText.h"
#include "document/records/clsPropertyVector.h"
#include "document/symbols/SymbolIds.h"
#include "platform/FindFile.h"
#include "platform/RuntimeError.h"
#include "platform/UserInterface.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr Long VersionWithFitShape = 0x60300;

/// An asset could not be had; the user was told why.
struct LoadStopped {};

[[noreturn]] void RaiseDamaged() {
    throw RuntimeError(ErrorOutOfRange, u"LoadProject", u"範囲外の数値が設定されました。");
}

/// Major as its own hexadecimal text, then two digits each of minor, revision and zero; the build
/// is added.
Long ReadVersion(clsCSV& csv) {
    const String major = csv.TakeText();
    if (major.empty() || major.size() > 2) RaiseDamaged();
    Long version = 0;
    for (const char16_t c : major) {
        const char16_t lower = static_cast<char16_t>(c | 0x20);
        const bool digit = c >= u'0' && c <= u'9';
        if (!digit && (lower < u'a' || lower > u'f')) RaiseDamaged();
        version = version * 16 + (digit ? c - u'0' : lower - u'a' + 10);
    }
    if (version > 0x7F) RaiseDamaged();
    version = version << 8 | csv.TakeByte();
    version = version << 8 | csv.TakeByte();
    version <<= 8;
    const Long build = csv.Value().empty() ? 0 : csv.TakeLong();
    if (build < 0 || build > std::numeric_limits<Long>::max() - version) RaiseDamaged();
    version += build;
    return version;
}

/// Kind of a row without an entry of the library.
Long HeadKind(Long id) {
    const SymbolKind& kind = KindOfFixedId(id);
    return kind.FixedName.empty() ? KindBackGround : kind.Number;
}

class Reader {
public:
    Reader(clsCSV& csv, String baseDir, const ProjectAssets& assets, std::optional<Long> importInto)
        : csv_(csv), baseDir_(std::move(baseDir)), assets_(assets), importInto_(importInto) {}

    /// `told` is what there is to tell before.
    Project Read(Notices told);
    Notices TakeTold() { return std::exchange(told_, {}); }
    /// Undoes references among the symbols of a load that failed, which may go round in circles.
    void Release();

private:
    void AskForVersion();
    /// Shows what was to be told so far, so that it stands before a question.
    void ShowTold() { ShowNotices(TakeTold()); }
    void ReadHtml();
    void ReadSymbols();
    void NoteId(const std::shared_ptr<clsSymbolData>& symbol);
    void TellUnknown(const std::vector<String>& cells);
    void FitFont(clsSymbolData& symbol);
    String FontInstead() const;
    void LoadAsset(clsSymbolData& symbol);
    String ChooseFile(const clsSymbolData& symbol);
    void ReadReferences();
    std::shared_ptr<clsSymbolData> TakeReference();
    void SeparateIds();
    void ReadLayers(Collection<clsLayer>& layers);
    std::shared_ptr<clsLayer> ReadLayer();
    std::shared_ptr<clsLayer> ReadAmbiguous(
        const std::vector<std::shared_ptr<clsSymbolData>>& symbols);
    std::shared_ptr<clsLayer> ReadLayerOf(const std::shared_ptr<clsSymbolData>& symbol);
    void CheckNesting() const;
    /// `done` of `total` items of a phase, told to the user a hundred times at most.
    static void ShowProgress(Long done, Long total);

    clsCSV& csv_;
    String baseDir_;
    const ProjectAssets& assets_;
    std::optional<Long> importInto_;
    Project project_;
    Notices told_;
    /// Words of unknown kinds that were told.
    std::set<String> unknownWords_;
    /// Files that the user would go without.
    std::set<String> withoutFile_;
    /// Fonts that were looked for, and what stands for those that are not available.
    std::unordered_map<String, String> fontsFor_;
    /// By the numbers of the file, of which rows tell. The first of a kind only.
    std::unordered_map<Long, std::vector<std::shared_ptr<clsSymbolData>>> byId_;
};

Project Reader::Read(Notices told) {
    told_ = std::move(told);
    project_.MainWidth = csv_.TakeLong();
    project_.MainHeight = csv_.TakeLong();
    project_.FrameRate = csv_.TakeSingle();
    project_.SWFVersion = csv_.TakeLong();
    csv_.CrLf();
    AskForVersion();
    ReadHtml();
    ReadSymbols();
    SeparateIds();
    FitSymbolCounts(*project_.colSymbol);
    NestSymbols(*project_.colSymbol);
    ReadReferences();
    for (const auto& symbol : *project_.colSymbol)
        if (auto* sprite = symbol->Property<clsPropertySprite>()) ReadLayers(*sprite->colLayer);
    ReadLayers(*project_.colMainLayer);
    CheckNesting();
    SetKomaSizes(*project_.colSymbol);
    return std::move(project_);
}

void Reader::AskForVersion() {
    if (!importInto_ || *importInto_ == project_.SWFVersion) return;
    ShowTold();
    if (CurrentUserInterface().Ask(u"SWFのバージョンが違います。\r\n読み込みますか？", ProgramTitle,
                                   Choices::YesNo) != Answer::Yes)
        RaiseDamaged();
}

void Reader::ShowProgress(Long done, Long total) {
    if (done == total || done % std::max(total / 100, 1) == 0)
        CurrentUserInterface().Progress(u"", done, total);
}

void Reader::Release() {
    if (!project_.colSymbol) return;
    for (const auto& symbol : *project_.colSymbol) {
        if (auto* sprite = symbol->Property<clsPropertySprite>()) sprite->colLayer->Clear();
        if (auto* koma = symbol->Property<clsPropertyKoma>()) koma->colKomas->Clear();
    }
}

void Reader::ReadHtml() {
    if (!EqualsNoCase(csv_.Value(), u"html")) return;
    csv_.Right();
    HtmlSettings html;
    html.SizeUnit = csv_.TakeText();
    html.WIDTH = csv_.TakeText();
    html.HEIGHT = csv_.TakeText();
    html.align = csv_.TakeText();
    html.salign = csv_.TakeText();
    html.play = csv_.TakeBoolean();
    html.loop = csv_.TakeBoolean();
    html.menu = csv_.TakeBoolean();
    html.quality = csv_.TakeText();
    html.wmode = csv_.TakeText();
    html.scale = csv_.TakeText();
    html.NamedAnchors = csv_.TakeBoolean();
    project_.Html = std::move(html);
    csv_.CrLf();
}

void Reader::ReadSymbols() {
    const Long count = csv_.TakeLong();
    csv_.CrLf();
    for (Long i = 1; i <= count; ++i) {
        auto symbol = std::make_shared<clsSymbolData>();
        ShowProgress(i, count);
        symbol->Index = i;
        symbol->Load(csv_, baseDir_);
        csv_.CrLf();
        switch (symbol->eType()) {
            case 0:
                TellUnknown(symbol->UnknownCells);
                break;
            case KindText:
                if (!importInto_) FitFont(*symbol);
                if (ProjectFileVersion < VersionWithFitShape) assets_.SetTextSize(*symbol);
                break;
            case KindBitmap:
            case KindSound:
            case KindVector:
            case KindMovie:
                LoadAsset(*symbol);
                break;
            default:
                break;
        }
        NoteId(symbol);
        project_.colSymbol->Add(std::move(symbol));
    }
}

void Reader::NoteId(const std::shared_ptr<clsSymbolData>& symbol) {
    // No layer shows a folder, whatever number it has.
    if (symbol->ID < 1 || !HasNumber(*symbol)) return;
    auto& same = byId_[symbol->ID];
    const auto ofKind = [&symbol](const auto& other) { return other->eType() == symbol->eType(); };
    if (std::none_of(same.begin(), same.end(), ofKind)) same.push_back(symbol);
}

/// Gives free numbers to the symbols whose number stands before.
void Reader::SeparateIds() {
    SymbolIds ids(*project_.colSymbol);
    std::unordered_set<Long> seen;
    bool told = false;
    for (const auto& symbol : *project_.colSymbol) {
        if (symbol->ID < 1 || !HasNumber(*symbol) || seen.insert(symbol->ID).second) continue;
        if (!told) told_.push_back({u"重複しているIDを、\r\n空いているIDへ変更します。"});
        told = true;
        ids.Change(*symbol, ids.Free());
    }
}

void Reader::TellUnknown(const std::vector<String>& cells) {
    const String word = cells.size() > 2 ? cells[2] : String();
    if (!unknownWords_.insert(word).second) return;
    told_.push_back(
        {u"「" + word + u"」は不明な種類のシンボルです。\r\n内容はそのまま保存されます。"});
}

String Reader::FontInstead() const {
    const String font = assets_.DefaultFont();
    return assets_.FontAvailable(font) ? font : String(LastFont);
}

void Reader::FitFont(clsSymbolData& symbol) {
    String& name = symbol.Property<clsPropertyText>()->FontName;
    if (name.starts_with(u'_')) return;
    const auto [known, isNew] = fontsFor_.try_emplace(name, name);
    if (isNew && !assets_.FontAvailable(name)) {
        known->second = FontInstead();
        // A substitute takes the place of the last one as a matter of course.
        if (name != known->second || !assets_.SubstituteAvailable())
            told_.push_back({u"「" + name + u"」が見つかりません。\r\n「" + known->second +
                             u"」へ変更します。"});
    }
    name = known->second;
}

/// The file to take in place of one that is missing; empty when the user knows none.
String Reader::ChooseFile(const clsSymbolData& symbol) {
    told_.push_back({symbol.FilePathName + u"\r\n\r\nファイルが見つかりません。"});
    ShowTold();
    FileDialog dialog;
    dialog.Title = u"ファイル選択";
    dialog.Filters.push_back(SymbolFileFilter(symbol.eType()));
    dialog.FileName = GetFileName(symbol.FilePathName);
    return CurrentUserInterface().OpenFileDialog(dialog);
}

void Reader::LoadAsset(clsSymbolData& symbol) {
    const String stored = symbol.FilePathName;
    if (withoutFile_.contains(stored)) return assets_.SetPlaceholder(symbol);
    const String found = FindFile(stored);
    symbol.FilePathName = found.empty() ? ChooseFile(symbol) : found;
    if (!symbol.FilePathName.empty()) {
        if (FileExists(symbol.FilePathName) && assets_.LoadFile(symbol, told_)) return;
        told_.push_back({u"ファイルの読み込みに失敗しました。\r\n\r\n" + symbol.FilePathName,
                         u"読み込みエラー", MessageIcon::Error});
        ShowTold();
    }
    symbol.FilePathName = stored;
    if (!CurrentUserInterface().AskToSkip(u"このファイルなしでプロジェクトを開きますか？\r\n\r\n" +
                                          stored))
        throw LoadStopped();
    withoutFile_.insert(stored);
    assets_.SetPlaceholder(symbol);
}

/// The symbol whose position stands in the cell, null for 0.
std::shared_ptr<clsSymbolData> Reader::TakeReference() {
    const Long index = csv_.TakeLong();
    return index == 0 ? nullptr : project_.colSymbol->Item(index);
}

void Reader::ReadReferences() {
    for (const auto& symbol : *project_.colSymbol) {
        if (auto* text = symbol->Property<clsPropertyText>()) {
            if (ProjectFileVersion < VersionWithFitShape) continue;
            text->FitShapeSymbol(TakeReference());
            if (!importInto_) assets_.SetTextSize(*symbol);
        } else if (auto* vector = symbol->Property<clsPropertyVector>()) {
            vector->MorphSymbol(TakeReference());
        } else if (auto* button = symbol->Property<clsPropertyButton>()) {
            button->HitTestSymbol(TakeReference());
            button->DownSymbol(TakeReference());
            button->OverSymbol(TakeReference());
            button->UpSymbol(TakeReference());
        } else if (auto* koma = symbol->Property<clsPropertyKoma>()) {
            while (!csv_.Value().empty())
                if (auto picture = TakeReference()) koma->colKomas->Add(std::move(picture));
        } else {
            continue;
        }
        csv_.CrLf();
    }
}

/// The rows from `first` to the cursor have as many cells as the layer writes.
bool IsAsWritten(const clsLayer& layer, const clsCSV& csv, Long first) {
    clsCSV written;
    layer.Save(written);
    if (written.Y() != csv.Y() - first) return false;
    for (Long row = 0; row < written.Y(); ++row)
        if (written.RowLength(row) != csv.RowLength(first + row)) return false;
    return true;
}

/// The cursor stands behind the number.
std::shared_ptr<clsLayer> Reader::ReadLayerOf(const std::shared_ptr<clsSymbolData>& symbol) {
    auto layer = std::make_shared<clsLayer>();
    layer->SymbolData(symbol);
    layer->Load(csv_);
    return layer;
}

/// Of symbols with one number, the rows mean the first whose kind has such cells, else the first.
std::shared_ptr<clsLayer> Reader::ReadAmbiguous(
    const std::vector<std::shared_ptr<clsSymbolData>>& symbols) {
    const Long x = csv_.X();
    const Long y = csv_.Y();
    for (const auto& symbol : symbols) {
        try {
            auto layer = ReadLayerOf(symbol);
            if (IsAsWritten(*layer, csv_, y)) return layer;
        } catch (const RuntimeError&) {
            // The cells are those of another kind.
        }
        csv_.SetPosition(x, y);
    }
    return ReadLayerOf(symbols.front());
}

std::shared_ptr<clsLayer> Reader::ReadLayer() {
    const Long id = csv_.TakeLong();
    if (id < 1) return ReadLayerOf(std::make_shared<clsSymbolData>(HeadKind(id)));
    const auto found = byId_.find(id);
    if (found == byId_.end()) RaiseDamaged();
    return found->second.size() == 1 ? ReadLayerOf(found->second.front())
                                     : ReadAmbiguous(found->second);
}

void Reader::ReadLayers(Collection<clsLayer>& layers) {
    const Long count = csv_.TakeLong();
    csv_.CrLf();
    for (Long i = 1; i <= count; ++i) {
        ShowProgress(i, count);
        layers.Add(ReadLayer());
    }
    FitLayerCounts(layers);
    NestLayers(layers);
}

/// Refuses symbols that show themselves, at first or at last hand, and bottomless nesting.
void Reader::CheckNesting() const {
    const std::size_t count = static_cast<std::size_t>(project_.colSymbol->Count()) + 1;
    std::vector<std::vector<Long>> shown(count);
    for (const auto& symbol : *project_.colSymbol) {
        std::vector<Long>& list = shown[static_cast<std::size_t>(symbol->Index)];
        ForEachShown(*symbol, [&list](const clsSymbolData& other) {
            if (other.Index > 0) list.push_back(other.Index);
        });
    }
    // Height of what a symbol shows; -1 while it is being worked out.
    std::vector<Long> height(count, 0);
    struct Step {
        std::size_t Symbol;
        std::size_t Next;
    };
    std::vector<Step> open;
    for (std::size_t start = 1; start < count; ++start) {
        if (height[start] != 0) continue;
        height[start] = -1;
        open.push_back({start, 0});
        while (!open.empty()) {
            auto& [symbol, next] = open.back();
            if (next < shown[symbol].size()) {
                const auto inner = static_cast<std::size_t>(shown[symbol][next++]);
                if (height[inner] == -1) RaiseDamaged();
                if (height[inner] == 0) {
                    height[inner] = -1;
                    open.push_back({inner, 0});
                }
                continue;
            }
            Long deepest = 0;
            for (const Long inner : shown[symbol])
                deepest = std::max(deepest, height[static_cast<std::size_t>(inner)]);
            if (deepest >= DeepestNesting) RaiseDamaged();
            height[symbol] = deepest + 1;
            open.pop_back();
        }
    }
}

ProjectLoad Damaged(Notices told) {
    told.push_back({u"読込できませんでした。\r\nファイルは本ソフト用ではない可能性があります。",
                    u"ファイルが不正です", MessageIcon::Error});
    return {false, std::move(told)};
}

/// The table of a project file, its cursor behind the version; false when the bytes are no project.
bool ReadHead(ByteView bytes, clsCSV& csv, Notices& told) {
    if (!DecodeProjectText(bytes, csv, told)) return false;
    if (csv.TakeText() != u"KVF") return false;
    ProjectFileVersion = ReadVersion(csv);
    csv.CrLf();
    return true;
}

}  // namespace

ProjectLoad LoadProject(StringView path, Project& out, const ProjectAssets& assets,
                        std::optional<Long> importInto) {
    const auto size = FileSize(path);
    Bytes bytes;
    if (!size || *size > LargestProjectText || !ReadFileBytes(path, bytes)) return Damaged({});
    return LoadProjectBytes(bytes, path, out, assets, importInto);
}

ProjectLoad LoadProjectBytes(ByteView bytes, StringView path, Project& out,
                             const ProjectAssets& assets, std::optional<Long> importInto) {
    const ProjectFileVersionScope version(NewestProjectFileVersion);
    clsCSV csv;
    Reader reader(csv, FolderOfFile(path), assets, importInto);
    try {
        Notices told;
        if (!ReadHead(bytes, csv, told)) return Damaged({});
        out = reader.Read(std::move(told));
        return {true, reader.TakeTold()};
    } catch (const LoadStopped&) {
        reader.Release();
        Notices told = reader.TakeTold();
        told.push_back({u"プロジェクトを開けませんでした。"});
        return {false, std::move(told)};
    } catch (const RuntimeError&) {
    } catch (const std::bad_alloc&) {
    } catch (const std::length_error&) {
    }
    reader.Release();
    return Damaged(reader.TakeTold());
}

bool ShowLoad(const ProjectLoad& load) {
    ShowNotices(load.Told);
    return load.Done;
}

}  // namespace tamber
