#include "vector/SvgDecoding.h"

#include <zlib.h>

#include <algorithm>
#include <numeric>

#include "platform/codepage.h"
#include "platform/text.h"
#include "swf/mdlZlib.h"
#include "vector/SvgBudget.h"
#include "vector/SvgScanner.h"

namespace tamber {

namespace {

constexpr Byte ZlibFirstByte = 120;
/// The declaration of the encoding lies within so many bytes.
constexpr std::size_t HeadSize = 1024;

bool IsGzip(ByteView bytes) {
    return bytes.size() > 1 && bytes[0] == 0x1F && bytes[1] == 0x8B;
}

/// Unpacks gzip members one behind the other.
class GzipReader {
public:
    explicit GzipReader(ByteView file) {
        constexpr int GzipOnly = 16;
        // zlib takes the input as non-const and does not write to it.
        zip_.next_in = const_cast<Bytef*>(file.data());
        zip_.avail_in = static_cast<uInt>(file.size());
        ready_ = inflateInit2(&zip_, MAX_WBITS + GzipOnly) == Z_OK;
    }
    ~GzipReader() {
        if (ready_) inflateEnd(&zip_);
    }
    GzipReader(const GzipReader&) = delete;
    GzipReader& operator=(const GzipReader&) = delete;

    std::optional<Bytes> Read() {
        Bytes bytes;
        if (!ready_) return std::nullopt;
        while (IsGzip({zip_.next_in, zip_.avail_in})) {
            if (inflateReset(&zip_) != Z_OK || !ReadMember(bytes)) return std::nullopt;
        }
        return bytes;
    }

private:
    bool ReadMember(Bytes& bytes) {
        constexpr std::size_t Block = 0x10000;
        int status = Z_OK;
        while (status == Z_OK && bytes.size() <= SvgBudget::MostText) {
            const std::size_t done = bytes.size();
            bytes.resize(done + std::max(Block, done / 2));
            zip_.next_out = bytes.data() + done;
            zip_.avail_out = static_cast<uInt>(bytes.size() - done);
            status = inflate(&zip_, Z_NO_FLUSH);
            bytes.resize(bytes.size() - zip_.avail_out);
        }
        return status == Z_STREAM_END;
    }

    z_stream zip_{};
    bool ready_;
};

bool DeclaresUtf8(std::string_view head) {
    static constexpr std::string_view Mark = "<?xml";
    const std::size_t found = head.find(Mark);
    if (found == std::string_view::npos) return false;
    SvgLeftOut ignored;
    SvgScanner scanner(head, found + Mark.size(), ignored);
    for (SvgAttribute attribute; scanner.NextAttribute(attribute);)
        if (attribute.Name == "encoding")
            return EqualsNoCase(FromNarrow(attribute.Value), u"utf-8");
    return false;
}

bool IsAscii(ByteView bytes) {
    return std::accumulate(bytes.begin(), bytes.end(), Byte{0}, [](Byte all, Byte byte) {
               return static_cast<Byte>(all | byte);
           }) < 0x80;
}

}  // namespace

std::optional<Bytes> UnpackSvgz(ByteView file) {
    if (file.size() < 2) return std::nullopt;
    if (file[0] == ZlibFirstByte) return mdlZlib::ZlibUncompress(file, SvgBudget::MostText);
    if (!IsGzip(file)) return Bytes(file.begin(), file.end());
    return GzipReader(file).Read();
}

std::string_view DecodeSvg(ByteView bytes, std::string& decoded) {
    const std::string_view raw(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    // Both encodings hold ASCII as it is.
    if (IsAscii(bytes)) return raw;
    const String text =
        DeclaresUtf8(raw.substr(0, HeadSize)) ? DecodeUtf8(bytes) : DecodeAnsi(bytes);
    decoded = ToNarrow(ReplaceAll(text, u"\u3000", u" "));
    return decoded;
}

}  // namespace tamber
