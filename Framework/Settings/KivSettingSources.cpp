#include "Settings/KivSettingSources.h"

#include "Base/KivDiagnostic.h"
#include "Settings/KivSettingTable.h"

#include <utility>

KivSettingSources::KivSettingSources(KivUnicodeString ownName, KivUnicodeString ownPath, bool isAdministrator)
    : _ownName(std::move(ownName)), _ownPath(std::move(ownPath)), _isAdministrator(isAdministrator)
{}

std::vector<KivUnicodeString> KivSettingSources::Files() const
{
    std::vector<KivUnicodeString> files;
    for (const KivSettingLayer& layer : _layers) files.push_back(layer.path);
    if (!_ownPath.IsEmpty()) files.push_back(_ownPath);
    return files;
}

void KivSettingSources::FillValue(const KivSettingAttribute& attribute,
                                  KivSettingProvenance& provenance) const
{
    using Origin = KivSettingInfo::Origin;
    provenance.origin = attribute.origin;
    if (attribute.origin == Origin::User) {
        provenance.initial = attribute.own.initial;
        provenance.layer = &_ownName;
        provenance.file = &_ownPath;
        provenance.line = attribute.own.line;
        provenance.setHere = _isAdministrator;
        if (_isAdministrator) provenance.origin = Origin::Administrator; // who writes a layer is its own one
    } else if (attribute.origin == Origin::Administrator) {
        const KivSettingLayer& layer = _layers[static_cast<std::size_t>(attribute.givenLayer)];
        provenance.layer = &layer.name;
        provenance.file = &layer.path;
        provenance.line = attribute.givenLine;
    }
}

void KivSettingSources::FillLock(const KivSettingAttribute& attribute, KivSettingProvenance& provenance) const
{
    switch (attribute.LockWith(attribute.own)) {
    case KivSettingAttribute::Lock::Open:
        break;
    case KivSettingAttribute::Lock::Here:
        provenance.lockedHere = true;
        provenance.lockLayer = &_ownName;
        provenance.lockFile = &_ownPath;
        provenance.lockLine = attribute.own.lock ? attribute.own.lockLine : attribute.ownPrefixLine;
        break;
    case KivSettingAttribute::Lock::Outside:
        const KivSettingLayer& layer = _layers[static_cast<std::size_t>(attribute.lockLayer)];
        provenance.locked = true;
        provenance.lockLayer = &layer.name;
        provenance.lockFile = &layer.path;
        provenance.lockLine = attribute.lockLine;
        if (!layer.closed.IsEmpty()) provenance.lockReason = &layer.closed;
        break;
    }
}

void KivSettingSources::Fill(KivSettingProvenance& provenance, const KivSettingAttribute& attribute) const
{
    FillValue(attribute, provenance);
    FillLock(attribute, provenance);
    provenance.canLock = _isAdministrator && !provenance.locked && !attribute.isUnderOwnPrefix;
}

void KivSettingSources::Describe(const KivSettingAttribute& attribute, KivSettingInfo& info) const
{
    KivSettingProvenance provenance;
    Fill(provenance, attribute);
    provenance.Fill(info);
    info.value = KivShownSettingText(attribute.Shown());
    if (KivHasValue(attribute.Shown())) info.type = KivSettingTypeName(attribute.Shown());
}

void KivSettingSources::ReportOtherType(const KivSettingAttribute& attribute, const char* expected)
{
    if (!KivHasValue(attribute.Shown()) || !_typesReported.insert(attribute.key).second) return;
    KivSettingInfo info;
    Describe(attribute, info);
    KivReport({.text = KivUnicodeString("the value is of the type ") + KivSettingTypeName(attribute.Shown()) +
                       " instead of " + expected + "; the default is used",
               .file = info.file,
               .line = info.line,
               .key = KivString(attribute.key)});
}
