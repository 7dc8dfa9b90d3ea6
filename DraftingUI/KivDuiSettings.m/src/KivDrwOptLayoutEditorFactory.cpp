#include "KivDrwOptLayoutEditorFactory.h"

#include "KivIDrwOptLayoutEditorFactory.h"

KIV_IMPLEMENT_TIE(TIEKivIDrwOptLayoutEditorFactoryKivDrwOptLayoutEditorFactory,
                  CreateTIEKivIDrwOptLayoutEditorFactoryKivDrwOptLayoutEditorFactory,
                  KivIDrwOptLayoutEditorFactory, KivDrwOptLayoutEditorFactory)
