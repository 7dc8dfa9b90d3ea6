#include "KivDrwOptTrelEditorFactory.h"

#include "KivIDrwOptTrelEditorFactory.h"

KIV_IMPLEMENT_TIE(TIEKivIDrwOptTrelEditorFactoryKivDrwOptTrelEditorFactory,
                  CreateTIEKivIDrwOptTrelEditorFactoryKivDrwOptTrelEditorFactory, KivIDrwOptTrelEditorFactory,
                  KivDrwOptTrelEditorFactory)
