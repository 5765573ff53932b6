#include "media/JpegError.h"

#include <jerror.h>

namespace tamber {

namespace {

// `Manager` is the first member, so its address is that of the whole.
[[noreturn]] void Fail(j_common_ptr object) {
    std::longjmp(reinterpret_cast<JpegError*>(object->err)->Back, 1);
}

void Message(j_common_ptr object, int level) {
    const int code = object->err->msg_code;
    if (level < 0 && (code == JWRN_JPEG_EOF || code == JWRN_HIT_MARKER)) Fail(object);
}

}  // namespace

jpeg_error_mgr* JpegError::Install() {
    jpeg_std_error(&Manager);
    Manager.error_exit = Fail;
    Manager.emit_message = Message;
    return &Manager;
}

}  // namespace tamber
