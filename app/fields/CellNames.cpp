#include "app/fields/CellNames.h"

#include "document/elements/SymbolKinds.h"

namespace tamber {

namespace {

constexpr std::string_view StaticText =
    "InitialText,DefineText,FontName,Width,height,FontSize,FontLeading,FontCharSpace,FontBold,"
    "FontItalic,FontColorRed,FontColorGreen,FontColorBlue,Alignment,blAutoSize,blDynamic,"
    "blFlashType,Thickness,Sharpness,FitShapeScaleX,FitShapeScaleY,blFitAngle,blFitEven,"
    "blFitOpposite,eBasePos";
constexpr std::string_view DynamicText =
    "InitialText,DefineText,FontName,Width,height,FontSize,FontLeading,FontCharSpace,FontBold,"
    "FontItalic,FontColorRed,FontColorGreen,FontColorBlue,Alignment,blAutoSize,blDynamic,"
    "blWordWrap,blInput,blSelect,blMultiLine,blBorder,blPassword,blHtml,VariableName,"
    "blFlashType,Thickness,Sharpness,FitShapeScaleX,FitShapeScaleY,blFitAngle,blFitEven,"
    "blFitOpposite,eBasePos";

}  // namespace

std::string_view OptionCellNames(Long kind, bool dynamicText) {
    switch (kind) {
        case KindBitmap:
            return "blToumei,ToumeiColorRed,ToumeiColorGreen,ToumeiColorBlue,blShading,"
                   "ShadingType,ShadingNum,blJpegComp,JpegQuality";
        case KindText:
            return dynamicText ? DynamicText : StaticText;
        case KindSound:
            return "blWavRead";
        case KindVector:
            return "blDivide,blFreeTrans,FreeTransPoint1,FreeTransPoint2,FreeTransPoint3,"
                   "FreeTransPoint4,FreeTransPoint5,FreeTransPoint6,FreeTransPoint7,"
                   "FreeTransPoint8,blLineOption,blNoLineScale,blPixelHinting,CapStyle,"
                   "JoinStyle,MiterLimit";
        case KindSprite:
            return "SpriteName,Width,height,baseX,baseY,bl9Scale,GridLeft,GridRight,GridTop,"
                   "GridBottom";
        case KindMovie:
            return "StartFrame,blSound,blSmoothing";
        case KindMovieEmp:
            return "MovieName,Width,height";
        case KindButton:
            return "ButtonName,blAutoHitTest,bl9Scale,GridLeft,GridRight,GridTop,GridBottom";
        case KindKoma:
            return "KomaName,DispCount";
        case KindSymbolFolder:
            return "FolderName,LayerCount,Expand";
        case KindClass:
            return "className,Extends,layers";
        case KindLink:
            return "SymbolName,URL,Width,height,target";
        default:
            return {};
    }
}

std::string_view ElementCellNames(Long kind) {
    switch (kind) {
        case KindBackGround:
            return "BackColorBlue,BackColorGreen,BackColorRed";
        case KindFrameLabel:
            return "LabelName,blAnchor";
        case KindSound:
            return "eEvent,Loops,VolumeL,VolumeR,StartTime,StopTime,FadeInTime,FadeOutTime";
        case KindFrameAction:
            return "Comment,Script,eScriptMode,nPrm1,nPrm2,strPrm1,strPrm2,TargetPath";
        case KindLayerFolder:
            return "FolderName,FolderDepth,LayerCount,Expand,Comment";
        default:
            return {};
    }
}

std::string_view FilterCellNames() {
    return "blEditColor,MultR,MultG,MultB,MultA,AddR,AddG,AddB,AddA,"
           "blDropShadow,DropShadow.Blue,DropShadow.Green,DropShadow.Red,DropShadow.ColorA,"
           "DropShadow.BlurX,DropShadow.BlurY,DropShadow.Angle,DropShadow.Distance,"
           "DropShadow.Strength,DropShadow.blInner,DropShadow.blKnockout,"
           "DropShadow.blCompositeSource,DropShadow.Passes,"
           "blBlur,Blur.BlurX,Blur.BlurY,Blur.Passes,"
           "blGlow,Glow.Blue,Glow.Green,Glow.Red,Glow.ColorA,Glow.BlurX,Glow.BlurY,"
           "Glow.Strength,Glow.blInner,Glow.blKnockout,Glow.blCompositeSource,Glow.Passes,"
           "blBevel,Bevel.ShadowBlue,Bevel.ShadowGreen,Bevel.ShadowRed,Bevel.ShadowColorA,"
           "Bevel.HighlightBlue,Bevel.HighlightGreen,Bevel.HighlightRed,"
           "Bevel.HighlightColorA,Bevel.BlurX,Bevel.BlurY,Bevel.Angle,Bevel.Distance,"
           "Bevel.Strength,Bevel.blInner,Bevel.blKnockout,Bevel.blCompositeSource,"
           "Bevel.blOnTop,Bevel.Passes,"
           "blConvolution,MatrixX,MatrixY,Divisor,Bias,"
           "m1,m2,m3,m4,m5,m6,m7,m8,m9,m10,m11,m12,m13,m14,m15,m16,m17,m18,m19,m20,m21,m22,m23,"
           "m24,m25,Default.Blue,Default.Green,Default.Red,Default.ColorA,blClamp,"
           "blPreserveAlpha,"
           "blColorMatrix,c1,c2,c3,c4,c5,c6,c7,c8,c9,c10,c11,c12,c13,c14,c15,c16,c17,c18,c19,c20";
}

std::string_view EffectCellNames() {
    return "blEffect,EffectType,blApplyOne,EffectInterval,EfIntervalType,blAllStop,EffectFrames,"
           "EffectName";
}

std::string_view ScriptCellNames() {
    return "Script,eScriptMode,nPrm1,nPrm2,strPrm1,strPrm2,TargetPath";
}

}  // namespace tamber
