#pragma once

#include "Settings/KivSettingInfo.h"
#include "Settings/KivSettingLayer.h"

#include <set>
#include <string_view>
#include <vector>

struct KivSettingAttribute;

// Where what a repository holds may stand: in the layers outside, or in the file that it writes.
class KivSettingSources {
public:
    // What a person calls the layer that is written, and the path of its file, empty when there is no place
    // for one.
    KivSettingSources(KivUnicodeString ownName, KivUnicodeString ownPath, bool isAdministrator);

    // Outermost first.
    void SetLayers(std::vector<KivSettingLayer> layers) { _layers = std::move(layers); }
    const std::vector<KivSettingLayer>& Layers() const { return _layers; }

    // Their files, whether they are there or not, outermost first; the own one last.
    std::vector<KivUnicodeString> Files() const;

    // Where the value and the lock of an attribute of the repository stand; fills an empty one.
    void Fill(KivSettingProvenance& provenance, const KivSettingAttribute& attribute) const;

    // The same in a record of its own, with the value; the record's names stay as they are.
    void Describe(const KivSettingAttribute& attribute, KivSettingInfo& info) const;

    // Says, once a key, that a reader expected another type than the one stored.
    void ReportOtherType(const KivSettingAttribute& attribute, const char* expected);

private:
    void FillValue(const KivSettingAttribute& attribute, KivSettingProvenance& provenance) const;
    void FillLock(const KivSettingAttribute& attribute, KivSettingProvenance& provenance) const;

    KivUnicodeString _ownName;
    KivUnicodeString _ownPath;
    bool _isAdministrator;
    std::vector<KivSettingLayer> _layers;
    std::set<std::string_view> _typesReported; // of these keys
};
