#pragma once

#include <memory>

#include "document/records/FieldRecord.h"
#include "document/records/clsButtonMatrix.h"

namespace tamber {

class clsSymbolData;

/// A button and its states.
class clsPropertyButton : public FieldRecord<clsPropertyButton> {
public:
    String ButtonName;
    bool blAutoHitTest = false;
    bool bl9Scale = false;
    Long GridLeft = 0;
    Long GridTop = 0;
    Long GridRight = 0;
    Long GridBottom = 0;
    clsButtonMatrix matrixUP;
    clsButtonMatrix matrixDown;
    clsButtonMatrix matrixOver;

    std::shared_ptr<clsSymbolData> UpSymbol() const { return up_.lock(); }
    void UpSymbol(const std::shared_ptr<clsSymbolData>& symbol) { up_ = symbol; }
    std::shared_ptr<clsSymbolData> DownSymbol() const { return down_.lock(); }
    void DownSymbol(const std::shared_ptr<clsSymbolData>& symbol) { down_ = symbol; }
    std::shared_ptr<clsSymbolData> OverSymbol() const { return over_.lock(); }
    void OverSymbol(const std::shared_ptr<clsSymbolData>& symbol) { over_ = symbol; }
    std::shared_ptr<clsSymbolData> HitTestSymbol() const { return hitTest_.lock(); }
    void HitTestSymbol(const std::shared_ptr<clsSymbolData>& symbol) { hitTest_ = symbol; }
    Long UpIndex() const;
    Long DownIndex() const;
    Long OverIndex() const;
    Long HitTestIndex() const;
    Long UpID() const;
    Long DownID() const;
    Long OverID() const;
    Long HitTestID() const;
    /// Largest of the up, down and over states.
    Long PixelWidth() const override;
    Long PixelHeight() const override;
    Long eType() const override { return KindButton; }
    std::optional<String> Name() const override { return ButtonName; }

    static constexpr auto Fields() {
        using T = clsPropertyButton;
        constexpr FromVersion WithMatrix(0x50C00);
        return std::tuple{
            Field(u"ButtonName", &T::ButtonName),
            Field(u"blAutoHitTest", &T::blAutoHitTest),
            Group(IfFilled(), Field(u"bl9Scale", &T::bl9Scale), Field(u"GridLeft", &T::GridLeft),
                  Field(u"GridRight", &T::GridRight), Field(u"GridTop", &T::GridTop),
                  Field(u"GridBottom", &T::GridBottom),
                  Group(WithMatrix, Record(u"matrixDown", u"Down.", &T::matrixDown),
                        Record(u"matrixOver", u"Over.", &T::matrixOver))),
        };
    }

private:
    std::weak_ptr<clsSymbolData> up_;
    std::weak_ptr<clsSymbolData> down_;
    std::weak_ptr<clsSymbolData> over_;
    std::weak_ptr<clsSymbolData> hitTest_;
};

}  // namespace tamber
