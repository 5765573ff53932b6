#pragma once

#include <string>

#include "swf/SwfBits.h"

namespace tamber {

/// A movie as text: its tags with their offsets, names and lengths, and the actions of frames,
/// clips and buttons. Offsets count from the beginning of the uncompressed file.
class MovieListing {
public:
    /// Lists the bytes of an SWF file, compressed or not, of 256 MiB at most.
    explicit MovieListing(ByteView file);

    /// What could be read, in UTF-8.
    const std::string& Text() const { return text_; }
    /// What is wrong with the file; empty when nothing is.
    const String& Fault() const { return fault_; }

private:
    void ListMovie(ByteView body);
    void ListTags(ByteView tags, std::size_t offset, std::size_t depth);
    void ListTag(Long code, ByteView body, std::size_t offset, std::size_t depth);
    void ListContents(Long code, ByteView body, std::size_t depth);
    void ListActions(ByteView actions, std::size_t depth);
    void ListClip(ByteView body, bool hasMoreFlags, std::size_t depth);
    void ListClipEvents(SwfBits& bits, std::size_t depth);
    void ListButton(ByteView body, std::size_t depth);
    void ListButton2(ByteView body, std::size_t depth);
    void Line(std::size_t depth, const std::string& text);
    void Damage(std::size_t offset);

    std::string text_;
    String fault_;
    Long version_ = 0;
    /// Of the tag's body.
    std::size_t offset_ = 0;
};

}  // namespace tamber
