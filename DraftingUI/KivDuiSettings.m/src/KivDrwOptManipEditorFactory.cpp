#include "KivDrwOptManipEditorFactory.h"

#include "KivIDrwOptManipEditorFactory.h"

KIV_IMPLEMENT_TIE(TIEKivIDrwOptManipEditorFactoryKivDrwOptManipEditorFactory,
                  CreateTIEKivIDrwOptManipEditorFactoryKivDrwOptManipEditorFactory,
                  KivIDrwOptManipEditorFactory, KivDrwOptManipEditorFactory)
