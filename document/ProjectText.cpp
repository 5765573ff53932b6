#include "document/ProjectText.h"

#include <zlib.h>

#include <algorithm>
#include <string_view>

#include "document/cells/UnicodeRows.h"
#include "platform/RuntimeError.h"
#include "platform/codepage.h"
#include "platform/text.h"
#include "swf/mdlZlib.h"

namespace tamber {

namespace {

constexpr std::string_view PackedMagic = "KVFZ";
constexpr std::size_t PackedHead = 8;
/// Tells of no cell, as a row number below 0 says. Its last character, a kanji, is no UTF-8.
constexpr std::string_view AnsiRow = "UNICODE,-1,0,\x95\x5C\r\n";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

std::string_view Narrow(ByteView bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

ByteView WithoutMark(ByteView bytes) {
    return Narrow(bytes).starts_with(ByteOrderMark) ? bytes.subspan(ByteOrderMark.size()) : bytes;
}

/// What a project text begins with, the quotes of its first cell left aside.
bool IsProjectHead(ByteView bytes) {
    const std::string_view head = Narrow(WithoutMark(bytes));
    return head.starts_with("KVF") || head.starts_with("\"KVF");
}

/// Unpacks a stream that says to hold `size` bytes, and no more than that.
bool Inflate(ByteView packed, std::size_t size, Bytes& out) {
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK) return false;
    stream.next_in = const_cast<Byte*>(packed.data());
    stream.avail_in = static_cast<uInt>(packed.size());
    Byte block[65536];
    int state = Z_OK;
    while (state == Z_OK) {
        stream.next_out = block;
        stream.avail_out = sizeof block;
        state = inflate(&stream, Z_NO_FLUSH);
        const std::size_t made = sizeof block - stream.avail_out;
        if (made == 0 && state == Z_OK) break;
        if (out.empty() && !IsProjectHead({block, made})) state = Z_DATA_ERROR;
        if (out.size() + made > size) state = Z_BUF_ERROR;
        if (state == Z_OK || state == Z_STREAM_END) out.insert(out.end(), block, block + made);
    }
    inflateEnd(&stream);
    return state == Z_STREAM_END;
}

bool Unpack(ByteView bytes, Bytes& text) {
    if (bytes.size() < PackedHead) return false;
    std::size_t size = 0;
    for (std::size_t i = PackedHead; i > PackedMagic.size(); --i) size = size << 8 | bytes[i - 1];
    return Inflate(bytes.subspan(PackedHead), std::min(size, LargestProjectText), text);
}

Bytes Pack(ByteView text) {
    Bytes out(PackedMagic.begin(), PackedMagic.end());
    for (const int shift : {0, 8, 16, 24})
        out.push_back(static_cast<Byte>(text.size() >> shift & 255));
    const Bytes stream = mdlZlib::ZlibCompress(text);
    out.insert(out.end(), stream.begin(), stream.end());
    return out;
}

/// Sequences of two bytes that are half-width kana in code page 932 too tell nothing.
bool IsKanaPair(Byte lead, Byte trail) {
    return lead >= 0xC2 && lead <= 0xDF && trail >= 0xA1 && trail <= 0xBF;
}

bool LooksLikeUtf8(ByteView text) {
    if (Narrow(text).starts_with(ByteOrderMark)) return true;
    if (!IsUtf8(text)) return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] < 0x80) continue;
        if (!IsKanaPair(text[i], text[i + 1])) return true;
        ++i;
    }
    return false;
}

String Decode(ByteView text, Notices& told) {
    if (!LooksLikeUtf8(text)) return DecodeAnsi(text);
    told.push_back({u"文字コードがUTF-8のプロジェクトです。\r\n保存するとShift-JISになります。",
                    String(ProgramTitle), MessageIcon::Information});
    return DecodeUtf8(WithoutMark(text));
}

}  // namespace

Bytes EncodeProjectText(clsCSV& csv, bool packed, std::size_t largest) {
    AppendUnicodeRows(csv);
    Bytes text = EncodeAnsi(csv.Text());
    if (LooksLikeUtf8(text)) text.insert(text.end(), AnsiRow.begin(), AnsiRow.end());
    if (text.size() > largest)
        throw RuntimeError(ErrorOutOfRange, u"SaveProject",
                           u"プロジェクトが大きすぎます。（" +
                               ToText(static_cast<Long>(largest >> 20)) + u"MBまで）");
    return packed ? Pack(text) : text;
}

bool DecodeProjectText(ByteView bytes, clsCSV& csv, Notices& told) {
    if (bytes.size() < PackedMagic.size() || bytes.size() > LargestProjectText) return false;
    Bytes unpacked;
    if (EqualsNoCase(FromNarrow(Narrow(bytes.first(PackedMagic.size()))), u"KVFZ")) {
        if (!Unpack(bytes, unpacked)) return false;
        bytes = unpacked;
    }
    csv.Text(Decode(bytes, told));
    TakeUnicodeRows(csv);
    return true;
}

}  // namespace tamber
