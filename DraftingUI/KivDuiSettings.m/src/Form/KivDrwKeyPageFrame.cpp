#include "Form/KivDrwKeyPageFrame.h"

void KivDrwKeyPageFrame::InitDraftingValues()
{
    for (KivProperty* property : _properties) property->LoadDefault();
}
