#include "document/clsPropertyData.h"

#include "document/clsLayer.h"
#include "document/clsPropertyBmp.h"
#include "document/clsPropertyButton.h"
#include "document/clsPropertyClass.h"
#include "document/clsPropertyKoma.h"
#include "document/clsPropertyLinkSymbol.h"
#include "document/clsPropertyMovie.h"
#include "document/clsPropertyMovieEmp.h"
#include "document/clsPropertySound.h"
#include "document/clsPropertySprite.h"
#include "document/clsPropertySymbolFolder.h"
#include "document/clsPropertyText.h"
#include "document/clsPropertyVector.h"
#include "document/clsSymbolData.h"

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
