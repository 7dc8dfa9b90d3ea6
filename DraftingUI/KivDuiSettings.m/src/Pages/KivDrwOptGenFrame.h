#pragma once

#include "Form/KivDrwKeyPageFrame.h"

// The Generation page: which dimensions and balloons are made when views are generated from a part or an
// assembly. It has no generic frame, and writes all its settings, in an order of its own, whenever one of
// them changes.
class KivDrwOptGenFrame final : public KivClass<KivDrwOptGenFrame, KivDrwKeyPageFrame> {
public:
    static constexpr const char* Name = "KivDrwOptGenFrame";
    KivDrwOptGenFrame(KivDialog* parent, const KivString& name);

    void Build() override;

    // Takes what the controls show and stores all of it.
    void Write();
    // The callback of every control.
    void WriteSettings_CallbackMethod(KivCommand* from, KivNotification* notification, void* data);

private:
    void BuildDimensions();

    KIV_KEY_PROPERTY(_genDim, int, KivDrwKeys::GenDim)
    KIV_KEY_PROPERTY(_genDimFilter, int, KivDrwKeys::GenDimFilter)
    KIV_KEY_PROPERTY(_genDimAutoPos, int, KivDrwKeys::GenDimAutoPos)
    KIV_KEY_PROPERTY(_genDimAutoTrans, int, KivDrwKeys::GenDimAutoTrans)
    KIV_KEY_PROPERTY(_genDimAnal, int, KivDrwKeys::GenDimAnal)
    KIV_KEY_PROPERTY(_genDimSemiAutoTimeOut, int, KivDrwKeys::GenDimSemiAutoTimeOut)
    KIV_KEY_PROPERTY(_genBalloonByInstance, int, KivDrwKeys::GenBalloonByInstance)
    KIV_KEY_PROPERTY(_genDimFromPart, int, KivDrwKeys::DrwGenDimFromPart)
};
