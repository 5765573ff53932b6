#pragma once

#include "platform/types.h"

namespace tamber {

/// Codes of the tags in a movie file.
namespace TagCode {
inline constexpr Long End = 0;
inline constexpr Long ShowFrame = 1;
inline constexpr Long DefineShape = 2;
inline constexpr Long PlaceObject = 4;
inline constexpr Long RemoveObject = 5;
inline constexpr Long DefineBits = 6;
inline constexpr Long DefineButton = 7;
inline constexpr Long JPEGTables = 8;
inline constexpr Long SetBackgroundColor = 9;
inline constexpr Long DefineFont = 10;
inline constexpr Long DefineText = 11;
inline constexpr Long DoAction = 12;
inline constexpr Long DefineFontInfo = 13;
inline constexpr Long DefineSound = 14;
inline constexpr Long StartSound = 15;
inline constexpr Long DefineButtonSound = 17;
inline constexpr Long SoundStreamHead = 18;
inline constexpr Long SoundStreamBlock = 19;
inline constexpr Long DefineBitsLossless = 20;
inline constexpr Long DefineBitsJPEG2 = 21;
inline constexpr Long DefineShape2 = 22;
inline constexpr Long DefineButtonCxform = 23;
inline constexpr Long Protect = 24;
inline constexpr Long PlaceObject2 = 26;
inline constexpr Long RemoveObject2 = 28;
inline constexpr Long DefineShape3 = 32;
inline constexpr Long DefineText2 = 33;
inline constexpr Long DefineButton2 = 34;
inline constexpr Long DefineBitsJPEG3 = 35;
inline constexpr Long DefineBitsLossless2 = 36;
inline constexpr Long DefineEditText = 37;
inline constexpr Long DefineSprite = 39;
inline constexpr Long NameCharacter = 40;
inline constexpr Long FrameLabel = 43;
inline constexpr Long SoundStreamHead2 = 45;
inline constexpr Long DefineMorphShape = 46;
inline constexpr Long DefineFont2 = 48;
inline constexpr Long ExportAssets = 56;
inline constexpr Long ImportAssets = 57;
inline constexpr Long EnableDebugger = 58;
inline constexpr Long DoInitAction = 59;
inline constexpr Long DefineVideoStream = 60;
inline constexpr Long VideoFrame = 61;
inline constexpr Long DefineFontInfo2 = 62;
inline constexpr Long EnableDebugger2 = 64;
inline constexpr Long ScriptLimits = 65;
inline constexpr Long SetTabIndex = 66;
inline constexpr Long FileAttributes = 69;
inline constexpr Long PlaceObject3 = 70;
inline constexpr Long ImportAssets2 = 71;
inline constexpr Long DefineFontAlignZones = 73;
inline constexpr Long CSMTextSettings = 74;
inline constexpr Long DefineFont3 = 75;
inline constexpr Long Metadata = 77;
inline constexpr Long DefineScalingGrid = 78;
inline constexpr Long DefineShape4 = 83;
inline constexpr Long DefineMorphShape2 = 84;
}  // namespace TagCode

}  // namespace tamber
