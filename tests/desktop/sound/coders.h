#pragma once

#include <vector>

#include "desktop/sound/decoder.h"

namespace orvanta::sound::test {

/// How a test codes a sound.
struct Form {
    Coding coding;
    int rate;
    int channels;
    int adpcmBits = 4;  // of a sample, 2 to 5
};

/// A tone, a third below full loudness; the right channel sounds a fifth above the left one.
Samples tone(double frequency, int rate, int channels, double seconds);

/// Coded as one piece, as an event sound is. The samples are in the form's rate and channels.
Bytes codedWhole(const Samples& samples, const Form& form);

/// Coded in pieces of the length of a picture, as a stream is.
std::vector<Bytes> codedInPieces(const Samples& samples, const Form& form);

/// Samples that the decoder of this form gives ahead of the sound.
int leadIn(const Form& form);

/// The share that a frequency has in the loudness of a channel, 0 to 1.
double shareOf(double frequency, const Samples& played, int channel);

}  // namespace orvanta::sound::test
