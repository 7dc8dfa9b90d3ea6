#include "Settings/KivSettingPlaces.h"

#include "Settings/KivSettingTable.h"

std::vector<KivUnicodeString> KivSettingPlaces::Files() const
{
    std::vector<KivUnicodeString> files;
    for (const KivSettingLayer& layer : layers) files.push_back(layer.path);
    if (!ownPath.IsEmpty()) files.push_back(ownPath);
    return files;
}

void KivSettingPlaces::Trace(const KivSettingAttribute& attribute, KivSettingProvenance& place) const
{
    using Origin = KivSettingInfo::Origin;
    place = {};
    place.origin = attribute.origin;
    if (attribute.origin == Origin::User) {
        place.initial = attribute.own.initial;
        place.layer = &ownName;
        place.file = &ownPath;
        place.line = attribute.own.line;
    } else if (attribute.origin == Origin::Administrator) {
        const KivSettingLayer& layer = layers[static_cast<std::size_t>(attribute.givenLayer)];
        place.layer = &layer.name;
        place.file = &layer.path;
        place.line = attribute.givenLine;
    }
    switch (attribute.LockWith(attribute.own)) {
    case KivSettingAttribute::Lock::Open:
        break;
    case KivSettingAttribute::Lock::Here:
        place.lockedHere = true;
        place.lockLayer = &ownName;
        place.lockFile = &ownPath;
        place.lockLine = attribute.own.lock ? attribute.own.lockLine : attribute.ownPrefixLine;
        break;
    case KivSettingAttribute::Lock::Outside:
        const KivSettingLayer& layer = layers[static_cast<std::size_t>(attribute.lockLayer)];
        place.locked = true;
        place.lockLayer = &layer.name;
        place.lockFile = &layer.path;
        place.lockLine = attribute.lockLine;
        break;
    }
}
