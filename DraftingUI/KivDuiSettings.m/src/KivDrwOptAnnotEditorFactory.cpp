#include "KivDrwOptAnnotEditorFactory.h"

#include "KivIDrwOptAnnotEditorFactory.h"

KIV_IMPLEMENT_TIE(TIEKivIDrwOptAnnotEditorFactoryKivDrwOptAnnotEditorFactory,
                  CreateTIEKivIDrwOptAnnotEditorFactoryKivDrwOptAnnotEditorFactory,
                  KivIDrwOptAnnotEditorFactory, KivDrwOptAnnotEditorFactory)
