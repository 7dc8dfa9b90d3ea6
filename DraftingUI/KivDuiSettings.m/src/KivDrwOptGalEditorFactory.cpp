#include "KivDrwOptGalEditorFactory.h"

#include "KivIDrwOptGalEditorFactory.h"

KIV_IMPLEMENT_TIE(TIEKivIDrwOptGalEditorFactoryKivDrwOptGalEditorFactory,
                  CreateTIEKivIDrwOptGalEditorFactoryKivDrwOptGalEditorFactory, KivIDrwOptGalEditorFactory,
                  KivDrwOptGalEditorFactory)
