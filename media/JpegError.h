#pragma once

#include <csetjmp>
#include <cstdio>

// jpeglib.h needs the declarations of <cstdio> before it.
#include <jpeglib.h>

namespace tamber {

/// libjpeg's error handler with the place to go back to: libjpeg leaves a function that fails by
/// longjmp, and data that ends early counts as a failure rather than a warning.
struct JpegError {
    jpeg_error_mgr Manager{};
    std::jmp_buf Back{};

    /// Prepares the handler and gives what goes into the `err` of a libjpeg object.
    jpeg_error_mgr* Install();
};

}  // namespace tamber
