#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

#include "desktop/sound/sound_module.h"

namespace orvanta::sound {

SoundModule loadSoundModule() {
    SoundModule module;
    const QDir programFolder(QCoreApplication::applicationDirPath());
    QLibrary library(programFolder.filePath(QLatin1String(soundModuleName)));
    if (const auto fill = reinterpret_cast<SoundModuleEntry>(library.resolve(soundModuleEntry)))
        fill(module);
    return module;
}

}  // namespace orvanta::sound
