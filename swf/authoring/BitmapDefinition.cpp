#include "swf/authoring/BitmapDefinition.h"

namespace tamber {

namespace {

template <class Tag>
Long AddPicture(clsSWFAdmin& admin, std::shared_ptr<Tag> tag, Long frame) {
    const Long id = tag->ID;
    admin.AddTag(frame, std::move(tag), true);
    return id;
}

}  // namespace

BitmapCharacters DefineBitmap(clsSWFAdmin& admin, const clsPropertyBmp& picture, Long frame) {
    BitmapCharacters result;
    result.Bitmap =
        picture.blJpeg
            ? AddPicture(admin, admin.GetNewJpeg(picture.bufBmp, picture.bufAlpha), frame)
            : AddPicture(admin,
                         admin.GetNewBitmap(picture.bufBmp, picture.BitCount, picture.Width,
                                            picture.height),
                         frame);
    result.Shape = AddPicture(
        admin, admin.GetNewBitmapShape(result.Bitmap, picture.Width, picture.height), frame);
    return result;
}

}  // namespace tamber
