#pragma once

#include <memory>

#include "document/records/FieldRecord.h"

namespace tamber {

/// A symbol imported from another movie by name.
class clsPropertyLinkSymbol : public FieldRecord<clsPropertyLinkSymbol> {
public:
    String SymbolName;
    /// The other movie.
    String URL;
    Long Width = 0;
    Long height = 0;
    /// Record of the target's kind, or null.
    std::shared_ptr<clsPropertyData> objPropertyData;

    /// Kind of the target. Setting it makes a new record; a link to a link raises.
    Long eSymbolType() const { return targetKind_; }
    void eSymbolType(Long kind);
    Long eTypeEx() const override { return targetKind_; }
    String SymbolTypeText() const { return String(SymbolKindText(targetKind_)); }
    String TypeTextEx() const override { return u"L:" + SymbolTypeText(); }

    Long eType() const override { return KindLink; }
    std::optional<String> Name() const override { return SymbolName; }
    String OptionText() const override {
        return objPropertyData ? objPropertyData->OptionText() : String();
    }
    bool HasInstanceName() const override { return targetKind_ == KindSprite; }
    Long PixelWidth() const override { return Width; }
    Long PixelHeight() const override { return height; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    /// The target's record is the copy's own.
    std::shared_ptr<clsPropertyData> Copy() const override;
    void CopyTo(clsPropertyData& target) const override;
    /// The target's options are called "target." and their names.
    void TellFields(const FieldSink& sink) const override;
    bool SetField(StringView name, StringView value) override;

    /// The target's kind and record follow behind them.
    static constexpr auto Fields() {
        using T = clsPropertyLinkSymbol;
        return std::tuple{
            Field(u"SymbolName", &T::SymbolName),
            Field(u"URL", &T::URL),
            Field(u"Width", &T::Width),
            Field(u"height", &T::height),
        };
    }

private:
    Long targetKind_ = 0;
};

}  // namespace tamber
