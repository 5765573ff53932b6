#include "script/compiler/Opcode.h"

#include <array>

namespace tamber {

namespace {

constexpr std::array<const char*, 256> MakeNames() {
    std::array<const char*, 256> names{};
    names[0x00] = "End";
    names[0x04] = "NextFrame";
    names[0x05] = "PreviousFrame";
    names[0x06] = "Play";
    names[0x07] = "Stop";
    names[0x08] = "ToggleQuality";
    names[0x09] = "StopSounds";
    names[0x0A] = "Add";
    names[0x0B] = "Subtract";
    names[0x0C] = "Multiply";
    names[0x0D] = "Divide";
    names[0x0E] = "Equals";
    names[0x0F] = "Less";
    names[0x10] = "And";
    names[0x11] = "Or";
    names[0x12] = "Not";
    names[0x13] = "StringEquals";
    names[0x14] = "StringLength";
    names[0x15] = "StringExtract";
    names[0x17] = "Pop";
    names[0x18] = "ToInteger";
    names[0x1C] = "GetVariable";
    names[0x1D] = "SetVariable";
    names[0x20] = "SetTarget2";
    names[0x21] = "StringAdd";
    names[0x22] = "GetProperty";
    names[0x23] = "SetProperty";
    names[0x24] = "CloneSprite";
    names[0x25] = "RemoveSprite";
    names[0x26] = "Trace";
    names[0x27] = "StartDrag";
    names[0x28] = "EndDrag";
    names[0x29] = "StringLess";
    names[0x2A] = "Throw";
    names[0x2B] = "CastOp";
    names[0x2C] = "ImplementsOp";
    names[0x30] = "RandomNumber";
    names[0x31] = "MBStringLength";
    names[0x32] = "CharToAscii";
    names[0x33] = "AsciiToChar";
    names[0x34] = "GetTime";
    names[0x35] = "MBStringExtract";
    names[0x36] = "MBCharToAscii";
    names[0x37] = "MBAsciiToChar";
    names[0x3A] = "Delete";
    names[0x3B] = "Delete2";
    names[0x3C] = "DefineLocal";
    names[0x3D] = "CallFunction";
    names[0x3E] = "Return";
    names[0x3F] = "Modulo";
    names[0x40] = "NewObject";
    names[0x41] = "DefineLocal2";
    names[0x42] = "InitArray";
    names[0x43] = "InitObject";
    names[0x44] = "TypeOf";
    names[0x45] = "TargetPath";
    names[0x46] = "Enumerate";
    names[0x47] = "Add2";
    names[0x48] = "Less2";
    names[0x49] = "Equals2";
    names[0x4A] = "ToNumber";
    names[0x4B] = "ToString";
    names[0x4C] = "PushDuplicate";
    names[0x4D] = "StackSwap";
    names[0x4E] = "GetMember";
    names[0x4F] = "SetMember";
    names[0x50] = "Increment";
    names[0x51] = "Decrement";
    names[0x52] = "CallMethod";
    names[0x53] = "NewMethod";
    names[0x54] = "InstanceOf";
    names[0x55] = "Enumerate2";
    names[0x60] = "BitAnd";
    names[0x61] = "BitOr";
    names[0x62] = "BitXor";
    names[0x63] = "BitLeft";
    names[0x64] = "BitRight";
    names[0x65] = "BitUnsignedRight";
    names[0x66] = "StrictEquals";
    names[0x67] = "Greater";
    names[0x68] = "StringGreater";
    names[0x69] = "Extends";
    names[0x81] = "GotoFrame";
    names[0x83] = "GetUrl";
    names[0x87] = "StoreRegister";
    names[0x88] = "ConstantPool";
    names[0x8A] = "WaitForFrame";
    names[0x8B] = "SetTarget";
    names[0x8C] = "GotoLabel";
    names[0x8D] = "WaitForFrame2";
    names[0x8E] = "DefineFunction2";
    names[0x8F] = "Try";
    names[0x94] = "With";
    names[0x96] = "Push";
    names[0x99] = "Jump";
    names[0x9A] = "GetUrl2";
    names[0x9B] = "DefineFunction";
    names[0x9D] = "If";
    names[0x9E] = "Call";
    names[0x9F] = "GotoFrame2";
    return names;
}

constexpr std::array<const char*, 256> Names = MakeNames();

}  // namespace

const char* OpcodeName(Byte code) {
    return Names[code];
}

}  // namespace tamber
