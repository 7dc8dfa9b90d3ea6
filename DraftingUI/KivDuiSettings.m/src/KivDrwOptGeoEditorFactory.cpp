#include "KivDrwOptGeoEditorFactory.h"

#include "KivIDrwOptGeoEditorFactory.h"

KIV_IMPLEMENT_TIE(TIEKivIDrwOptGeoEditorFactoryKivDrwOptGeoEditorFactory,
                  CreateTIEKivIDrwOptGeoEditorFactoryKivDrwOptGeoEditorFactory, KivIDrwOptGeoEditorFactory,
                  KivDrwOptGeoEditorFactory)
