#include "KivDrwOptAdminEditorFactory.h"

#include "KivIDrwOptAdminEditorFactory.h"

KIV_IMPLEMENT_TIE(TIEKivIDrwOptAdminEditorFactoryKivDrwOptAdminEditorFactory,
                  CreateTIEKivIDrwOptAdminEditorFactoryKivDrwOptAdminEditorFactory,
                  KivIDrwOptAdminEditorFactory, KivDrwOptAdminEditorFactory)
