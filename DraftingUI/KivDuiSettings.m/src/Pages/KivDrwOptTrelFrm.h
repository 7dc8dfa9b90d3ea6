#pragma once

#include "Form/KivDrwPageAccessors.h"
#include "Form/KivPageFrame.h"
#include "KivDrwSettingAccess.h"

// The Compatibility page: how drawings of the earlier product generation are taken over. It has no generic
// frame: its accessors are bound to the settings where they are declared.
class KivDrwOptTrelFrm final : public KivClass<KivDrwOptTrelFrm, KivPageFrame> {
    using Self = KivDrwOptTrelFrm;

public:
    static constexpr const char* Name = "KivDrwOptTrelFrm";
    KivDrwOptTrelFrm(KivDialog* parent, const KivString& name) : KivClass(parent, name, Name) {}

    void Build() override;

    KIV_KEY_SETTING(unsigned char, _createCenterEndPts, KivDrwKeys::ImportCenterEndPoints,
                    SetCreateCenterEndPts, GetCreateCenterEndPts, GetCreateCenterEndPtsInfo)
    KIV_KEY_SETTING(unsigned char, _convertDimensionAsGraphic, KivDrwKeys::ConvertDimensionAsGraphic,
                    SetConvertDimensionAsGraphic, GetConvertDimensionAsGraphic,
                    GetConvertDimensionAsGraphicInfo)
    KIV_KEY_SETTING(unsigned char, _explodeDitto, KivDrwKeys::ExplodeDitto, SetExplodeDitto, GetExplodeDitto,
                    GetExplodeDittoInfo)
    KIV_KEY_SETTING(unsigned char, _explodeSymbolo, KivDrwKeys::DrwExplodeSymbolo, SetExplodeSymbolo,
                    GetExplodeSymbolo, GetExplodeSymboloInfo)
    KIV_KEY_SETTING(unsigned char, _blinkRedValue, KivDrwKeys::DrwBlinkRed, SetBlinkRedValue,
                    GetBlinkRedValue, GetBlinkRedValueInfo)
    KIV_KEY_SETTING(KivUnicodeString, _gvsXml, KivDrwKeys::DrwGVSXmlTrel, SetGVSXml, GetGVSXml, GetGVSXmlInfo)

private:
    KivSettingRepository* _repository = KivDrwRepository(); // may be null: the page then shows defaults
};
