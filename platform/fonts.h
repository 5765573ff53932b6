#pragma once

#include <vector>

#include "platform/types.h"

namespace tamber {

/// A face to draw with.
struct LogFont {
    String FaceName;
    /// Height of the cell, from the ascent to the descent.
    Long Height = 1024;
    bool Bold = false;
    bool Italic = false;

    bool operator==(const LogFont&) const = default;
};

struct OutlinePoint {
    Long X = 0;
    Long Y = 0;
    bool operator==(const OutlinePoint&) const = default;
};

/// A line to the anchor, or a quadratic curve by the control point to it. A line's control point is
/// its anchor.
struct OutlineEdge {
    OutlinePoint Control;
    OutlinePoint Anchor;
    bool Curved = false;
    bool operator==(const OutlineEdge&) const = default;
};

/// The edges of a contour stand behind those of the contour before.
struct OutlineContour {
    OutlinePoint Start;
    Long EdgeCount = 0;
};

/// Contours in two rows, so that an outline takes no memory of its own in the place of an earlier
/// one. The last edge of a contour need not lead back to its start.
struct GlyphOutline {
    std::vector<OutlineContour> Contours;
    /// May be longer than the contours need.
    std::vector<OutlineEdge> Edges;
};

/// The outline of one character in a cell 1024 units high; y grows downwards from the cell's top.
struct GlyphOutlineRecord {
    /// Coordinates lie from -Farthest to Farthest - 1, so that the distance of any two fits the
    /// edge records of a movie. Those of real faces lie within a few cells.
    static constexpr Long Farthest = 0x8000;

    char16_t Character = 0;
    LogFont Font;
    /// Advance to the next character, units.
    Long CellIncX = 0;
    /// Distance of the base line from the cell's top, units.
    Long Ascent = 0;
    GlyphOutline Outline;
};

/// Fills the record with a character's outline. A blank has no contours but its advance; so has,
/// with the face's own replacement shape, a character that the face lacks. A font that is not
/// installed, or whose file cannot be opened, is drawn with a substitute. False, with an empty
/// outline, when no face can be had at all, or the glyph is damaged. A height of 1 or less does
/// nothing, and is false; any other gives the same outline. A record that is filled again lends its
/// memory to the new outline, which is much faster than a new record each time.
bool GetCharOutline(GlyphOutlineRecord& record, char16_t character, const LogFont& font);

/// A face of exactly this name, in any of its languages and letter case, is installed.
bool FontInstalled(StringView name);

/// A face that is taken before all others for fonts that are not installed is.
bool SubstituteInstalled();

/// Names of the installed faces, each once and sorted: that in Japanese where a face has one. With
/// `japaneseOnly` only of faces that hold Japanese text. Never empty.
std::vector<String> InstalledFonts(bool japaneseOnly);

}  // namespace tamber
