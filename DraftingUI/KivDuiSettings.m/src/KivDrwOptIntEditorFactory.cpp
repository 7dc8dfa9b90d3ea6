#include "KivDrwOptIntEditorFactory.h"

#include "KivIDrwOptIntEditorFactory.h"

KIV_IMPLEMENT_TIE(TIEKivIDrwOptIntEditorFactoryKivDrwOptIntEditorFactory,
                  CreateTIEKivIDrwOptIntEditorFactoryKivDrwOptIntEditorFactory, KivIDrwOptIntEditorFactory,
                  KivDrwOptIntEditorFactory)
