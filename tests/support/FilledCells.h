#pragma once

#include "platform/types.h"

namespace tamber::cells {

// Cells of records whose values are all away from their defaults.

inline const String EditColor = u"90,80,70,60,1,2,3,4";
inline const String DropShadow = u"1,2,3,50,4,5,30,6,2.5,True,True,False,3";
inline const String Blur = u"7,8,1";
inline const String Glow = u"9,8,7,40,3,4,1.5,True,True,False,3";
inline const String Bevel = u"1,2,3,10,4,5,6,20,7,8,60,9,2,True,True,False,True,1";
inline const String Convolution =
    u"3,3,2,1,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,24,25,5,6,7,30,True,True";
inline const String ColorMatrix = u"21,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20";
inline const String Filters = u"True," + EditColor + u",True," + DropShadow + u",True," + Blur +
                              u",True," + Glow + u",True," + Bevel + u",True," + Convolution +
                              u",True," + ColorMatrix;

inline const String PlacementHead =
    u"12.5,-3.2,1,2,False,15000,-20000,-10,90,450000,10000,-20000,128,";
/// Two curves, then the filters, then a path of two points: a tail goes on behind them.
inline const String Placement = PlacementHead + u"NON,True,2\r\n0,0,0.5,0.25,2\r\n0,0,1,0.5\r\n8," +
                                Filters + u",2\r\nOn,1.5,2,Off,3,4";
inline const String TextEffect = u"True,out,True,5,Right,True,30,fade,speed,3,";
inline const String SpriteEffect = u"True,loop,False,5,Random,True,12,spin,";
inline const String FreeTransform = u"True,1,2,3,4,5,6,7,8,True";

inline const String Script = u"\"trace(\"\"1\"\");\",2,1,1,p1,p2,_root";
inline const String FrameAction = u"note,stop();,2,1,1,end,w,_parent";
inline const String Sound = u"2,3,50,60,100,200,10,20";
inline const String LayerFolder = u"棚,1,1,False,memo";

inline const String Matrix = u"True,5,6,90,80,70,60,1,2,3,4";
inline const String BitmapRecord = u"True,1,2,3,True,BL,50,True,80";
inline const String TextRecord =
    u"初め,def,Font,100,20,12,1.5,2,True,True,10,20,30,1,False,True,True,True,True,True,True,True,"
    u"True,var,True,3,4,2,3,False,True,True,2";
inline const String VectorRecord = u"True,True,1,2,3,4,5,6,7,8,True,True,True,1,2,512";
inline const String SpriteRecord = u"スプライト1,10,20,1,2,True,1,3,2,4";
inline const String MovieRecord = u"2,False,True";
inline const String MovieEmpRecord = u"空1,30,40";
inline const String ButtonRecord = u"ボタン1,True,True,1,3,2,4," + Matrix + u"," + Matrix;
inline const String KomaRecord = u"コマ1,3";
inline const String FolderRecord = u"フォルダ1,1,False";
inline const String ClassRecord = u"MyClass,Base,2\r\nc1,x=1;\r\nc2,\"a(\"\"b\"\");\"";
inline const String LinkRecord = u"lib,other.swf,10,20,画像," + BitmapRecord;

}  // namespace tamber::cells
