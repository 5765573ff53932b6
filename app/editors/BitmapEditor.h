#pragma once

#include <optional>

#include "media/BitmapTreatment.h"

namespace tamber {

/// Edits how a picture is treated, and shows it so.
class BitmapEditor {
public:
    /// Entries of the combo for edges.
    enum class Edges { None, Blur, ColorRange };
    static constexpr StringView EdgesText[] = {u"処理しない", u"ぼかし", u"色範囲"};

    /// The picture as it was read.
    BitmapEditor(clsDib picture, const BitmapOptions& options)
        : picture_(std::move(picture)), options_(options) {}

    const clsDib& Picture() const { return picture_; }
    const BitmapOptions& Options() const { return options_; }

    void Transparent(bool on);
    /// Takes the colour of a pixel for the transparent one. False outside of the picture.
    bool PickColor(Long x, Long y);
    void Color(Byte red, Byte green, Byte blue);

    Edges EdgeTreatment() const;
    void EdgeTreatment(Edges edges);
    /// In front of the number of the edges' treatment.
    StringView NumberLabel() const;
    /// The largest number: for a blur pixels of reach, for a range of colours the distance between
    /// black and white.
    Long NumberLimit() const;
    /// Held within 0 and the limit.
    void Number(Long value);

    void JpegComp(bool on);
    /// Held within 1 and 100.
    void JpegQuality(Long value);

    /// The picture as the movie will show it, 32 bits deep with its `ADib`. Made when something
    /// changed since the last time.
    const clsDib& Preview();
    /// Bytes that it takes in the movie, 0 when it cannot be made.
    std::size_t MovieSize() const;

private:
    /// Changes a value and forgets the preview if it differs.
    template <class T>
    void Set(T& value, T wanted) {
        if (value == wanted) return;
        value = wanted;
        preview_.reset();
    }

    clsDib picture_;
    BitmapOptions options_;
    std::optional<clsDib> preview_;
};

}  // namespace tamber
