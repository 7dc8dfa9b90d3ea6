#include "Settings/KivSettingProvenance.h"

void KivSettingProvenance::Fill(KivSettingInfo& info) const
{
    info.origin = origin;
    info.initial = initial;
    if (layer) info.layer = *layer;
    if (file) info.file = *file;
    info.line = line;
    info.locked = locked;
    info.lockedHere = lockedHere;
    info.canLock = canLock;
    if (lockLayer) info.lockLayer = *lockLayer;
    if (lockFile) info.lockFile = *lockFile;
    info.lockLine = lockLine;
    if (lockReason) info.lockReason = *lockReason;
}
