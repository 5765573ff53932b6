#include "swf/authoring/clsSWFAdmin.h"

#include <algorithm>

#include "platform/files.h"
#include "platform/rounding.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "swf/mdlSWFTag.h"
#include "swf/mdlZlib.h"
#include "swf/tags/clsSWFTagDefineEditText.h"
#include "swf/tags/clsSWFTagDefineFont.h"
#include "swf/tags/clsSWFTagDefineText.h"
#include "swf/tags/clsSWFTagFileAttributes.h"
#include "swf/tags/clsSWFTagSetBackgroundColor.h"

namespace tamber {

namespace {

constexpr std::size_t PlainHeaderSize = 8;
constexpr std::size_t LengthPosition = 4;
/// 8.8 fixed point.
constexpr Long MaxRate = 0xFFFF;
constexpr Long CompressionVersion = 5;
constexpr Long AttributesVersion = 8;
/// DefineShape4 and DefineMorphShape2 come with this version.
constexpr Long Shape4Version = 8;

Bytes CompressMovie(ByteView movie) {
    Bytes result =
        mdlZlib::ZlibCompress(movie.subspan(PlainHeaderSize), movie.first(PlainHeaderSize));
    result[0] = 'C';
    return result;
}

void TakeShape(clsSWFTagDefineShape& tag, const clsVectorData2& data) {
    tag.blUsesNonScalingStrokes = data.blUsesNonScalingStrokes;
    tag.blUsesScalingStrokes = data.blUsesScalingStrokes;
    tag.colFillStyles = data.colFillStyles;
    tag.colLineStyles = data.colLineStyles;
    tag.ShapeRecords = data.inSWFTShapeRecords;
}

}  // namespace

void clsSWFAdmin::InitSWF() {
    colInitAction.clear();
    colDefineObj_ = std::make_shared<DefinitionList>();
    frames_.clear();
    colTailTag_.clear();
    DefineID = 0;
    if (inFontAdmin) ReserveFonts();
    BackGroundColor = -1;
    blStreamWarning_ = true;
}

void clsSWFAdmin::SetDimension(Long x1, Long x2, Long y1, Long y2, Long margin) {
    dimension_ = {x1 - margin, y1 - margin, x2 + margin, y2 + margin};
}

void clsSWFAdmin::colDefineObj(std::shared_ptr<DefinitionList> definitions) {
    colDefineObj_ = std::move(definitions);
    DefineID = static_cast<Long>(colDefineObj_->size());
}

clsSWFTag* clsSWFAdmin::DefineObj(Long id) const {
    if (id < 1 || id > static_cast<Long>(colDefineObj_->size())) return nullptr;
    return (*colDefineObj_)[static_cast<std::size_t>(id - 1)].get();
}

void clsSWFAdmin::FrameCount(Long count) {
    frames_.resize(static_cast<std::size_t>(std::max(count, 1)));
}

void clsSWFAdmin::SetFrameLabel(Long frame, StringView name, bool blAnchor) {
    if (frame < 1) return;
    if (frame > FrameCount()) FrameCount(frame);
    frames_[static_cast<std::size_t>(frame - 1)].SetLabelName(name, blAnchor);
}

/// Identifiers 1 to the number of fonts stand for the fonts.
void clsSWFAdmin::ReserveFonts() {
    for (Long i = 1; i <= inFontAdmin->FontCount(); ++i) {
        inFontAdmin->FontObject(i)->InitAuthorFrame();
        AddDefinition(std::make_shared<clsSWFTagDefineFont>());
    }
}

void clsSWFAdmin::NoteFont(Long frame, const clsSWFTag& tag) {
    Long font = 0;
    if (const auto* text = dynamic_cast<const clsSWFTagDefineText*>(&tag)) font = text->FontID;
    if (const auto* field = dynamic_cast<const clsSWFTagDefineEditText*>(&tag))
        font = field->FontID;
    if (font >= 1 && font <= inFontAdmin->FontCount())
        inFontAdmin->FontObject(font)->AuthorFrame(frame);
}

bool clsSWFAdmin::AddTag(Long frame, SWFTagReference tag, bool blDefine) {
    if (frame < 1 || !tag) return false;
    if (frame > FrameCount()) FrameCount(frame);
    if (blDefine && inFontAdmin) NoteFont(frame, *tag);
    frames_[static_cast<std::size_t>(frame - 1)].AddTag(std::move(tag), blDefine);
    return true;
}

bool clsSWFAdmin::AddPlaceObj(Long frame, std::shared_ptr<clsSWFTagPlaceObject> tag) {
    if (frame < 1 || !tag) return false;
    IncPlaceCount(tag->PlaceID, tag->PlaceCnt);
    return AddTag(frame, std::move(tag), false);
}

bool clsSWFAdmin::AddWrittenPlace(Long frame, clsSWFTagPlaceObject& tag) {
    if (frame < 1) return false;
    if (frame > FrameCount()) FrameCount(frame);
    IncPlaceCount(tag.PlaceID, tag.PlaceCnt);
    const std::size_t start = mdlSWFTag::swfBytePos();
    tag.Save();
    frames_[static_cast<std::size_t>(frame - 1)].AddWritten(mdlSWFTag::TakeBack(start));
    return true;
}

void clsSWFAdmin::IncPlaceCount(Long id, Long count) {
    if (id == 0) return;
    for (Long i = 0; i < count; ++i)
        if (clsSWFTag* definition = DefineObj(id + i)) definition->IncPlaceCnt();
}

bool clsSWFAdmin::AddTagSoundBlock(Long frame, SWFTagReference block, Notices& told) {
    if (frame < 1 || !block) return false;
    if (frame > FrameCount()) FrameCount(frame);
    if (frames_[static_cast<std::size_t>(frame - 1)].AddTagSoundBlock(std::move(block)))
        return true;
    if (blStreamWarning_)
        told.push_back(
            {u"サウンドのストリーミング定義が重複しています。\r\n"
             u"ストリーミング再生は重複させることができません。",
             String(ProgramTitle),
             MessageIcon::Warning,
             {.Frame = frame}});
    blStreamWarning_ = false;
    return false;
}

void clsSWFAdmin::AddInitAction(std::shared_ptr<clsSWFTagDoAction> action, Long orderNum,
                                Long spriteID) {
    if (!action) return;
    action->OrderNum = orderNum;
    action->SpriteID = spriteID;
    colInitAction.push_back(std::move(action));
}

std::shared_ptr<clsSWFTagDoAction> clsSWFAdmin::GetNewDoAction(StringView text, bool& ok,
                                                               ScriptCompiler& compiler) const {
    if (text.empty()) return nullptr;
    const CompiledScript& compiled = compiler.Compile(text);
    ok = compiled.IsCompiled();
    if (!ok || compiled.Actions.empty()) return nullptr;
    auto tag = std::make_shared<clsSWFTagDoAction>();
    tag->bufAction = compiled.Actions;
    return tag;
}

void clsSWFAdmin::AddColInitAction(Long frame) {
    if (!colInitAction.empty() && frame >= 1) {
        if (frame > FrameCount()) FrameCount(frame);
        frames_[static_cast<std::size_t>(frame - 1)].AddColInitAction(colInitAction);
    }
    colInitAction.clear();
}

Long clsSWFAdmin::AddDefinition(SWFTagReference tag) {
    colDefineObj_->push_back(std::move(tag));
    return ++DefineID;
}

std::shared_ptr<clsSWFTagDefineBitsLossless> clsSWFAdmin::GetNewBitmap(Bytes stream, Long bitCount,
                                                                       Long width, Long height) {
    auto tag = std::make_shared<clsSWFTagDefineBitsLossless>();
    tag->SetBitmap(std::move(stream), bitCount);
    tag->Width = width;
    tag->height = height;
    tag->ID = AddDefinition(tag);
    return tag;
}

std::shared_ptr<clsSWFTagDefineBitsJPEG> clsSWFAdmin::GetNewJpeg(Bytes stream, Bytes alpha) {
    auto tag = std::make_shared<clsSWFTagDefineBitsJPEG>();
    tag->bufJpeg(std::move(stream));
    if (!alpha.empty()) tag->bufAlpha(std::move(alpha));
    tag->ID = AddDefinition(tag);
    return tag;
}

std::shared_ptr<clsSWFTagDefineShape> clsSWFAdmin::GetNewShape(Long ver) {
    auto tag = std::make_shared<clsSWFTagDefineShape>();
    tag->Ver = ver;
    tag->blUsesScalingStrokes = true;
    tag->ID = AddDefinition(tag);
    return tag;
}

std::shared_ptr<clsSWFTagDefineShape> clsSWFAdmin::GetNewShape(Long ver,
                                                               const clsVectorData2& data) {
    auto tag = GetNewShape(Ver >= Shape4Version ? data.Ver : ver);
    TakeShape(*tag, data);
    return tag;
}

std::shared_ptr<clsSWFTagDefineShape> clsSWFAdmin::GetNewMorphShape(const clsVectorData2& start,
                                                                    const clsVectorData2& end) {
    const bool extended = start.Ver >= 4 && Ver >= Shape4Version;
    auto tag = GetNewShape(extended ? -2 : -1);
    TakeShape(*tag, start);
    tag->colFillStyles2 = end.colFillStyles;
    tag->colLineStyles2 = end.colLineStyles;
    tag->ShapeRecords2 = end.inSWFTShapeRecords;
    return tag;
}

std::shared_ptr<clsSWFTagDefineShape> clsSWFAdmin::GetNewBitmapShape(Long bitmapID, Long width,
                                                                     Long height) {
    auto tag = GetNewShape(1);
    const Long fill = tag->AddBitmapFill(bitmapID, 0, 0);
    clsSWFTShapeRecords& records = *tag->ShapeRecords;
    records.SetFill0(fill);
    records.MovePenTo(width * TwipsPerPixel, height * TwipsPerPixel);
    records.DrawLineHTo(0);
    records.DrawLineVTo(0);
    records.DrawLineHTo(width * TwipsPerPixel);
    records.DrawLineVTo(height * TwipsPerPixel);
    return tag;
}

std::shared_ptr<clsSWFTagImport> clsSWFAdmin::GetNewImport(StringView url, StringView name) {
    auto tag = std::make_shared<clsSWFTagImport>();
    tag->URL(url);
    tag->AddSymbol(AddDefinition(tag), name);
    return tag;
}

std::shared_ptr<clsSWFTagDefineScalingGrid> clsSWFAdmin::GetNewScalingGrid(Long id, Long xMin,
                                                                           Long xMax, Long yMin,
                                                                           Long yMax) {
    auto tag = std::make_shared<clsSWFTagDefineScalingGrid>();
    tag->ID = id;
    tag->XMin = xMin;
    tag->XMax = xMax;
    tag->YMin = yMin;
    tag->YMax = yMax;
    return tag;
}

std::shared_ptr<clsSWFTagDefineVideoStream> clsSWFAdmin::GetNewVideoStreamEmp(Long width,
                                                                              Long height) {
    auto tag = std::make_shared<clsSWFTagDefineVideoStream>();
    tag->Width = width;
    tag->height = height;
    tag->ID = AddDefinition(tag);
    return tag;
}

void clsSWFAdmin::FramesSave() {
    if (BackGroundColor >= 0) {
        clsSWFTagSetBackgroundColor background;
        background.Color = BackGroundColor;
        background.Save();
    }
    for (std::size_t i = 0; i < frames_.size(); ++i) {
        if (i < 2) SaveFonts(i == 0);
        frames_[i].Save();
    }
    for (const auto& tag : colTailTag_) tag->Save();
}

/// Fonts that frame 1 needs, or those that later frames do.
void clsSWFAdmin::SaveFonts(bool first) const {
    if (!inFontAdmin) return;
    for (Long i = 1; i <= inFontAdmin->FontCount(); ++i) {
        const auto& font = inFontAdmin->FontObject(i);
        if (font->AuthorFrame() == 0 || (font->AuthorFrame() == 1) != first) continue;
        const std::size_t mark = font->FontName.rfind(u'_');
        const StringView style = StringView(font->FontName).substr(mark + 1);
        clsSWFTagDefineFont tag;
        tag.ID = i;
        tag.FontName = font->FontName.substr(0, mark);
        tag.Bold = style.find(u"Bo") != StringView::npos;
        tag.Italic = style.find(u"It") != StringView::npos;
        tag.FontObject = font;
        tag.Save();
    }
}

void clsSWFAdmin::SaveHeader() {
    mdlSWFTag::SetString(u"FWS", false, false);
    mdlSWFTag::SetBytes(1, Ver);
    mdlSWFTag::SetBytes(4, 0);
    mdlSWFTag::SetRect(dimension_.xMin, dimension_.xMax, dimension_.yMin, dimension_.yMax);
    mdlSWFTag::SetBytes(2, std::min(RoundToLong(static_cast<double>(FrameRate) * 256.0), MaxRate));
    mdlSWFTag::SetBytes(2, FrameCount());
    if (Ver >= AttributesVersion) clsSWFTagFileAttributes().Save();
}

bool clsSWFAdmin::Save(StringView path, Notices& told) {
    return SaveTo([path](ByteView file) { return WriteFileBytes(file, path); }, told);
}

bool clsSWFAdmin::SaveTo(const std::function<bool(ByteView)>& take, Notices& told) {
    mdlSWFTag::swfVersion(Ver);
    mdlSWFTag::InitBuffer();
    SaveHeader();
    FramesSave();
    mdlSWFTag::SetEndTag();
    mdlSWFTag::PatchBytes(LengthPosition, 4, static_cast<Long>(mdlSWFTag::swfBytePos()));
    const ByteView movie = mdlSWFTag::Written();
    const bool compresses = blCompress && Ver >= CompressionVersion;
    if (blCompress && !compresses)
        told.push_back({u"SWF" + ToText(Ver) + u"では、SWF圧縮できません",
                        String(ProgramTitle),
                        MessageIcon::Information,
                        {}});
    const bool taken = take(compresses ? ByteView(CompressMovie(movie)) : movie);
    mdlSWFTag::ReleaseBuffer();
    return taken;
}

}  // namespace tamber
