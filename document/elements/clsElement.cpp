#include "document/elements/clsElement.h"

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsLayerFolder.h"
#include "document/elements/clsObjBackGround.h"
#include "document/elements/clsObjBitmap.h"
#include "document/elements/clsObjButton.h"
#include "document/elements/clsObjFrameAction.h"
#include "document/elements/clsObjFrameLabel.h"
#include "document/elements/clsObjKoma.h"
#include "document/elements/clsObjMovie.h"
#include "document/elements/clsObjSound.h"
#include "document/elements/clsObjSprite.h"
#include "document/elements/clsObjText.h"
#include "document/elements/clsObjVector.h"

namespace tamber {

std::shared_ptr<clsElement> clsElement::Copy() const {
    auto copy = MakeElement(eType());
    CopyTo(*copy, true);
    return copy;
}

std::shared_ptr<clsElement> MakeElement(Long kind) {
    switch (kind) {
        case KindBackGround:
            return std::make_shared<clsObjBackGround>();
        case KindFrameLabel:
            return std::make_shared<clsObjFrameLabel>();
        case KindBitmap:
            return std::make_shared<clsObjBitmap>();
        case KindText:
            return std::make_shared<clsObjText>();
        case KindSound:
            return std::make_shared<clsObjSound>();
        case KindVector:
            return std::make_shared<clsObjVector>();
        case KindSprite:
            return std::make_shared<clsObjSprite>();
        case KindMovie:
            return std::make_shared<clsObjMovie>();
        case KindMovieEmp: {
            auto movie = std::make_shared<clsObjMovie>();
            movie->blEmpty = true;
            return movie;
        }
        case KindFrameAction:
            return std::make_shared<clsObjFrameAction>();
        case KindButton:
            return std::make_shared<clsObjButton>();
        case KindKoma:
            return std::make_shared<clsObjKoma>();
        case KindLayerFolder:
            return std::make_shared<clsLayerFolder>();
        default:
            return nullptr;
    }
}

}  // namespace tamber
