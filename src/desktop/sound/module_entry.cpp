#include <QtGlobal>

#include "desktop/sound/sound_module.h"

extern "C" Q_DECL_EXPORT void orvantaSoundModule(orvanta::sound::SoundModule& filled) {
    filled = {.samplesOf = orvanta::sound::samplesOfMovie,
              .makeSpeaker = orvanta::sound::makeSystemSpeaker};
}
