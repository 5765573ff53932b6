#include "document/symbols/clsPropertyData.h"

#include "document/symbols/clsLayer.h"
#include "document/records/clsPropertyBmp.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertyLinkSymbol.h"
#include "document/records/clsPropertyMovie.h"
#include "document/records/clsPropertyMovieEmp.h"
#include "document/records/clsPropertySound.h"
#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertySymbolFolder.h"
#include "document/records/clsPropertyText.h"
#include "document/records/clsPropertyVector.h"
#include "document/symbols/clsSymbolData.h"

namespace tamber {

std::shared_ptr<clsPropertyData> MakePropertyData(Long kind) {
    switch (kind) {
        case KindBitmap:
            return std::make_shared<clsPropertyBmp>();
        case KindText:
            return std::make_shared<clsPropertyText>();
        case KindSound:
            return std::make_shared<clsPropertySound>();
        case KindVector:
            return std::make_shared<clsPropertyVector>();
        case KindSprite:
            return std::make_shared<clsPropertySprite>();
        case KindMovie:
            return std::make_shared<clsPropertyMovie>();
        case KindMovieEmp:
            return std::make_shared<clsPropertyMovieEmp>();
        case KindButton:
            return std::make_shared<clsPropertyButton>();
        case KindKoma:
            return std::make_shared<clsPropertyKoma>();
        case KindSymbolFolder:
            return std::make_shared<clsPropertySymbolFolder>();
        case KindClass:
            return std::make_shared<clsPropertyClass>();
        case KindLink:
            return std::make_shared<clsPropertyLinkSymbol>();
        default:
            return nullptr;
    }
}

}  // namespace tamber
