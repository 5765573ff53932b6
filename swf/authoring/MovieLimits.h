#pragma once

#include "swf/authoring/mdlSWFAuthoring.h"

namespace tamber {

/// Versions that movies are built for.
inline constexpr Long LowestMovieVersion = 4;
inline constexpr Long HighestMovieVersion = 8;
/// Most frames that a movie's header can tell.
inline constexpr Long MaxFrames = 65535;
/// Frames a second: 8.8 fixed point in a movie's header.
inline constexpr Single LowestFrameRate = 0.01f;
inline constexpr Single FrameRateEnd = 256;
/// Depths of one timeline, for both orders of its layers.
inline constexpr Long MaxDepths = 16383;
/// Identifiers are 16 bits wide.
inline constexpr Long MaxIdentifiers = 65535;
/// Placement tags of a whole movie: about a gigabyte while it is built.
inline constexpr std::int64_t MaxPlacements = 4'000'000;

/// Why a movie file cannot hold what is asked for; empty when it can.
String MovieLimitFault(const MovieRequest& request);

}  // namespace tamber
