#pragma once

#include "canvas/picture/FontCharacter.h"
#include "canvas/picture/TextFieldLayout.h"

namespace tamber {

/// How a text field looks; lengths in twips.
struct EditTextFormat {
    PaintBox Bounds;
    /// Null for the player's own.
    std::shared_ptr<const FontCharacter> Font;
    double Size = 240;
    PictureColor Color;
    /// 0 left, 1 right, 2 centre.
    Long Alignment = 0;
    double LeftMargin = 0;
    double RightMargin = 0;
    double Indent = 0;
    double Leading = 0;
    bool blWordWrap = false;
    bool blMultiLine = false;
    bool blPassword = false;
    bool blAutoSize = false;
    bool blBorder = false;
    bool blHtml = false;
    /// Drawn with the outlines of its font, and not with those of the machine.
    bool blUseOutlines = false;
};

/// A text field.
class EditTextCharacter : public Character {
public:
    EditTextCharacter(EditTextFormat format, String variableName, String initialText)
        : format_(std::move(format)),
          variableName_(std::move(variableName)),
          initialText_(std::move(initialText)) {}

    void Draw(Painter& painter, const PaintState& state) const override;
    PaintBox Bounds(const PaintState& state) const override;

private:
    const String& TextIn(const PaintState& state) const;
    std::vector<TextRun> Runs(const String& text) const;
    FieldMeasures Measures() const;
    /// The field's box, which grows with its text where it may.
    PaintBox BoxAround(const TextFieldLayout& layout) const;
    void DrawBorder(const PaintBox& box, Painter& painter, const PaintState& state) const;

    EditTextFormat format_;
    String variableName_;
    String initialText_;
};

}  // namespace tamber
