#include "media/GifReader.h"

#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "media/PictureLimits.h"

namespace tamber {

namespace {

/// A code of 12 bits, the longest, stands for 3839 pixels at most.
constexpr std::int64_t LzwPixelsPerByte = 2560;

class GifDecoder {
public:
    GifDecoder(ByteView file, clsDib& dib) : rest_(file), fileSize_(file.size()), dib_(dib) {
        gif_ = DGifOpen(this, ReadBytes, nullptr);
    }
    ~GifDecoder() {
        if (gif_ != nullptr) DGifCloseFile(gif_, nullptr);
    }
    GifDecoder(const GifDecoder&) = delete;
    GifDecoder& operator=(const GifDecoder&) = delete;

    bool Decode() {
        if (gif_ == nullptr || !FindPicture()) return false;
        const GifImageDesc& place = gif_->Image;
        const std::int64_t width = std::max(gif_->SWidth, place.Left + place.Width);
        const std::int64_t height = std::max(gif_->SHeight, place.Top + place.Height);
        if (place.Width < 1 || place.Height < 1 || !PictureSizeAllowed(width, height) ||
            !PictureFillsFile(width * height, fileSize_, LzwPixelsPerByte))
            return false;
        dib_.Create(static_cast<Long>(width), static_cast<Long>(height), 8);
        if (!ReadPixels()) return false;
        StorePalette();
        StoreTransparency();
        if (width != place.Width || height != place.Height) ClearSurround();
        return true;
    }

private:
    static int ReadBytes(GifFileType* gif, GifByteType* target, int count) {
        ByteView& rest = static_cast<GifDecoder*>(gif->UserData)->rest_;
        const std::size_t read = std::min(rest.size(), static_cast<std::size_t>(count));
        std::copy_n(rest.begin(), read, target);
        rest = rest.subspan(read);
        return static_cast<int>(read);
    }

    /// Goes on to the description of the first picture.
    bool FindPicture() {
        GifRecordType record = UNDEFINED_RECORD_TYPE;
        while (DGifGetRecordType(gif_, &record) == GIF_OK) {
            if (record == IMAGE_DESC_RECORD_TYPE) return DGifGetImageDesc(gif_) == GIF_OK;
            if (record != EXTENSION_RECORD_TYPE || !ReadExtension()) return false;
        }
        return false;
    }

    bool ReadExtension() {
        int code = 0;
        GifByteType* block = nullptr;
        if (DGifGetExtension(gif_, &code, &block) != GIF_OK) return false;
        while (block != nullptr) {
            GraphicsControlBlock control{};
            if (code == GRAPHICS_EXT_FUNC_CODE &&
                DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK)
                transparent_ = control.TransparentColor;
            if (DGifGetExtensionNext(gif_, &block) != GIF_OK) return false;
        }
        return true;
    }

    bool ReadPixels() {
        if (!gif_->Image.Interlace) return ReadPass(0, 1);
        return ReadPass(0, 8) && ReadPass(4, 8) && ReadPass(2, 4) && ReadPass(1, 2);
    }

    bool ReadPass(int first, int step) {
        const GifImageDesc& place = gif_->Image;
        for (int y = first; y < place.Height; y += step)
            if (DGifGetLine(gif_, PictureRow(y), place.Width) != GIF_OK) return false;
        return true;
    }

    Byte* PictureRow(int y) { return dib_.Row(gif_->Image.Top + y) + gif_->Image.Left; }

    void StorePalette() {
        const GifImageDesc& place = gif_->Image;
        const ColorMapObject* map = place.ColorMap != nullptr ? place.ColorMap : gif_->SColorMap;
        if (map == nullptr) return;
        const int count = std::min(map->ColorCount, 256);
        for (int i = 0; i < count; ++i) {
            const GifColorType& colour = map->Colors[i];
            dib_.dib.bmiColors[static_cast<std::size_t>(i)] =
                RgbQuad{colour.Blue, colour.Green, colour.Red, 255};
        }
        dib_.dib.bmiHeader.biClrUsed = static_cast<std::uint32_t>(count);
    }

    void StoreTransparency() {
        if (transparent_ == NO_TRANSPARENT_COLOR) return;
        MakeTransparent(transparent_);
    }

    void MakeTransparent(int index) {
        dib_.dib.bmiColors[static_cast<std::size_t>(index)].rgbReserved = 0;
        dib_.PalTransCount = index;
        dib_.blHasPalTrans = true;
    }

    /// Fills what the picture leaves free with the transparent index. Without one an index that
    /// the picture does not use serves, and if it uses all, the screen's background.
    void ClearSurround() {
        int index = transparent_;
        if (index == NO_TRANSPARENT_COLOR) index = UnusedIndex();
        if (index == NO_TRANSPARENT_COLOR)
            index = gif_->SBackGroundColor;
        else
            MakeTransparent(index);
        const GifImageDesc& place = gif_->Image;
        for (Long y = 0; y < dib_.Height(); ++y) {
            Byte* row = dib_.Row(y);
            const bool beside = y >= place.Top && y < place.Top + place.Height;
            const Long left = beside ? place.Left : dib_.Width();
            const Long right = beside ? place.Left + place.Width : dib_.Width();
            std::fill(row, row + left, static_cast<Byte>(index));
            std::fill(row + right, row + dib_.Width(), static_cast<Byte>(index));
        }
    }

    int UnusedIndex() {
        std::array<bool, 256> used{};
        for (int y = 0; y < gif_->Image.Height; ++y) {
            const Byte* row = PictureRow(y);
            for (int x = 0; x < gif_->Image.Width; ++x) used[row[x]] = true;
        }
        const auto free = std::find(used.begin(), used.end(), false);
        return free == used.end() ? NO_TRANSPARENT_COLOR : static_cast<int>(free - used.begin());
    }

    GifFileType* gif_ = nullptr;
    ByteView rest_;
    std::size_t fileSize_;
    clsDib& dib_;
    int transparent_ = NO_TRANSPARENT_COLOR;
};

}  // namespace

bool ReadGif(ByteView file, clsDib& dib) {
    return GifDecoder(file, dib).Decode();
}

}  // namespace tamber
