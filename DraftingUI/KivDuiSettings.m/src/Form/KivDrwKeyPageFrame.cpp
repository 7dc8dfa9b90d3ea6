#include "Form/KivDrwKeyPageFrame.h"

void KivDrwKeyPageFrame::InitDraftingValues()
{
    for (KivBoundValue* value : _values) value->LoadDefault();
}
