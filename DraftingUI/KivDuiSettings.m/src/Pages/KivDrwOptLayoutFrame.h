#pragma once

#include "Form/KivDrwKeyPageFrame.h"

// The Layout page: what new views show and how they are placed, what new sheets start from, and where the
// scripts of frames and title blocks lie. It has no generic frame.
class KivDrwOptLayoutFrame final : public KivClass<KivDrwOptLayoutFrame, KivDrwKeyPageFrame> {
public:
    static constexpr const char* Name = "KivDrwOptLayoutFrame";
    KivDrwOptLayoutFrame(KivDialog* parent, const KivString& name) : KivClass(parent, name, Name) {}

    void Build() override;
    void UpdateWidgets() override;

private:
    void BuildViews();
    void BuildSheets();
    void BuildTitleBlock();

    void DirectoryAnswered(KivCommand* from, KivNotification* notification, void* data);
    void MarkDirectory();

    KIV_KEY_PROPERTY(_calloutSize, int, KivDrwKeys::DrwCalloutSize)
    KIV_KEY_PROPERTY(_viewName, unsigned char, KivDrwKeys::ViewName)
    KIV_KEY_PROPERTY(_viewScale, unsigned char, KivDrwKeys::ViewScale)
    KIV_KEY_PROPERTY(_viewFrame, unsigned char, KivDrwKeys::ViewFrame)
    KIV_KEY_PROPERTY(_viewOrientation, unsigned char, KivDrwKeys::ViewOrientation)
    KIV_KEY_PROPERTY(_genPropagation, unsigned char, KivDrwKeys::GenPropagation)
    KIV_KEY_PROPERTY(_sourceSheetType, int, KivDrwKeys::SourceSheetType)
    KIV_KEY_PROPERTY(_backgroundViewToCopy, unsigned char, KivDrwKeys::BackgroundViewToCopy)
    KIV_KEY_PROPERTY(_titleBlockPath, KivUnicodeString, KivDrwKeys::DrwFrameAndTitleBlockPath)
    KIV_KEY_PROPERTY(_strictPositioning, unsigned char, KivDrwKeys::KivDrwStrictPositioning)
    KivWeakPtr<KivDrwLockEditor> _titleBlockField;
    KivWeakPtr<KivDrwLockLabel> _missingLabel;
};
