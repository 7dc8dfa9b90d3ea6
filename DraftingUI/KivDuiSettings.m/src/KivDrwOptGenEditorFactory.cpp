#include "KivDrwOptGenEditorFactory.h"

#include "KivIDrwOptGenEditorFactory.h"

KIV_IMPLEMENT_TIE(TIEKivIDrwOptGenEditorFactoryKivDrwOptGenEditorFactory,
                  CreateTIEKivIDrwOptGenEditorFactoryKivDrwOptGenEditorFactory, KivIDrwOptGenEditorFactory,
                  KivDrwOptGenEditorFactory)
