#pragma once

#include <bit>
#include <string_view>

#include "platform/types.h"

namespace tamber::test {

/// A movie's bytes put together field by field, apart from the program's own writer.
class MovieMaker {
public:
    /// The low `count` bits, the highest first.
    MovieMaker& Bits(int count, std::int64_t value) {
        while (count-- > 0) {
            if (free_ == 0) {
                bytes_.push_back(0);
                free_ = 8;
            }
            --free_;
            bytes_.back() |= static_cast<Byte>((value >> count & 1) << free_);
        }
        return *this;
    }
    /// The low `count` bytes, the lowest first, at a byte boundary.
    MovieMaker& Low(int count, std::uint64_t value) {
        free_ = 0;
        for (; count > 0; --count, value >>= 8) bytes_.push_back(static_cast<Byte>(value));
        return *this;
    }
    MovieMaker& Add(const MovieMaker& other) {
        free_ = 0;
        bytes_.insert(bytes_.end(), other.bytes_.begin(), other.bytes_.end());
        return *this;
    }
    MovieMaker& Rect(int xMin, int xMax, int yMin, int yMax) {
        free_ = 0;
        Bits(5, 16);
        for (const int value : {xMin, xMax, yMin, yMax}) Bits(16, value);
        return *this;
    }
    /// Scale of a half by two, no rotation.
    MovieMaker& Matrix(int x, int y) {
        free_ = 0;
        return Bits(1, 1).Bits(5, 20).Bits(20, 0x8000).Bits(20, 0x20000).Bits(1, 0).Move(x, y);
    }
    MovieMaker& Tag(int code, const MovieMaker& body) {
        const std::size_t size = body.bytes_.size();
        Low(2, static_cast<unsigned>(code << 6) | (size < 63 ? size : 63));
        if (size >= 63) Low(4, size);
        return Add(body);
    }

    // Shape records.
    /// Flags of a style change: 1 move, 2 fill 0, 4 fill 1, 8 line, 16 new styles; the fields
    /// follow.
    MovieMaker& Change(int flags) { return Bits(1, 0).Bits(5, flags); }
    MovieMaker& Move(int x, int y) { return Bits(5, 20).Bits(20, x).Bits(20, y); }
    MovieMaker& Line(int dx, int dy) { return Edge(3, 12).Bits(1, 1).Bits(12, dx).Bits(12, dy); }
    MovieMaker& LevelLine(int dx) { return Edge(3, 17).Bits(2, 0).Bits(17, dx); }
    MovieMaker& UprightLine(int dy) { return Edge(3, 2).Bits(2, 1).Bits(2, dy); }
    MovieMaker& Curve(int cx, int cy, int ax, int ay) {
        Edge(2, 10);
        for (const int value : {cx, cy, ax, ay}) Bits(10, value);
        return *this;
    }
    MovieMaker& End() { return Bits(6, 0); }

    const Bytes& Made() const { return bytes_; }

private:
    MovieMaker& Edge(int kind, int width) { return Bits(2, kind).Bits(4, width - 2); }

    Bytes bytes_;
    int free_ = 0;
};

/// A movie of 100 x 50 pixels, its origin at (10, 5) pixels; `tags` and a frame's end.
inline Bytes Movie(const MovieMaker& tags) {
    MovieMaker movie;
    movie.Low(3, 0x535746).Low(1, 8).Low(4, 0).Rect(200, 2219, 100, 1100).Low(4, 0x10C00);
    return movie.Add(tags).Low(2, 1 << 6).Low(2, 0).Made();
}

}  // namespace tamber::test
