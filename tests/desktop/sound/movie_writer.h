#pragma once

#include "coders.h"

namespace orvanta::sound::test {

enum class Packing { None, Zlib };

/// Writes a movie tag by tag.
class MovieWriter {
public:
    MovieWriter& tag(int code, const Bytes& body);
    MovieWriter& streamHead(const Form& form, int skipped = 0);
    MovieWriter& streamBlock(const Form& form, const Bytes& coded);
    /// Head and blocks.
    MovieWriter& stream(const Form& form, const Samples& samples);
    /// Tells how many samples the sound has, and to skip the lead-in.
    MovieWriter& defineSound(int id, const Form& form, const Samples& samples);
    MovieWriter& startSound(int id, int flags = 0);
    MovieWriter& sprite(const MovieWriter& inside);

    /// The end tag is added.
    Bytes file(Packing packing = Packing::None) const;

private:
    Bytes m_tags;
};

/// A file of these tags, given as they are.
Bytes movieFile(const Bytes& tags, Packing packing);

/// The lowest byte first.
Bytes littleEndian(std::uint32_t value, int size);

Bytes joined(std::initializer_list<Bytes> parts);

}  // namespace orvanta::sound::test
