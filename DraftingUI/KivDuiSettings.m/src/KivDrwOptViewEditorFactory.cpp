#include "KivDrwOptViewEditorFactory.h"

#include "KivIDrwOptViewEditorFactory.h"

KIV_IMPLEMENT_TIE(TIEKivIDrwOptViewEditorFactoryKivDrwOptViewEditorFactory,
                  CreateTIEKivIDrwOptViewEditorFactoryKivDrwOptViewEditorFactory, KivIDrwOptViewEditorFactory,
                  KivDrwOptViewEditorFactory)
