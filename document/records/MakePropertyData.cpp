#include "document/symbols/clsPropertyData.h"

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
#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"

namespace tamber {

namespace {

template <class Record>
std::shared_ptr<clsPropertyData> New() {
    return std::make_shared<Record>();
}

struct RecordMaker {
    Long Kind;
    std::shared_ptr<clsPropertyData> (*Make)();
};

constexpr RecordMaker Makers[]{
    {KindBitmap, New<clsPropertyBmp>},        {KindText, New<clsPropertyText>},
    {KindSound, New<clsPropertySound>},       {KindVector, New<clsPropertyVector>},
    {KindSprite, New<clsPropertySprite>},     {KindMovie, New<clsPropertyMovie>},
    {KindMovieEmp, New<clsPropertyMovieEmp>}, {KindButton, New<clsPropertyButton>},
    {KindKoma, New<clsPropertyKoma>},         {KindSymbolFolder, New<clsPropertySymbolFolder>},
    {KindClass, New<clsPropertyClass>},       {KindLink, New<clsPropertyLinkSymbol>},
};

}  // namespace

std::shared_ptr<clsPropertyData> MakePropertyData(Long kind) {
    for (const RecordMaker& maker : Makers)
        if (maker.Kind == kind) return maker.Make();
    return nullptr;
}

}  // namespace tamber
