#pragma once

#include "Component/KivClass.h"
#include "Component/KivVar.h"
#include "Options/KivEditorFactory.h"
#include "Options/KivIUserSettings.h"

#include <vector>

// The options manager: the component that libraries extend by the factories of their pages. It knows no page;
// it finds the factories and the editors through the class dictionary.
class KivUserSettingsManager : public KivClass<KivUserSettingsManager, KivBaseUnknown> {
public:
    static constexpr const char* Name = "KivUserSettingsManager";
    static constexpr const char* LateType = "KivEditorManager2";
    static constexpr KivClassKind Kind = KivClassKind::MainClass;

    struct Editor {
        KivString name; // the editor's class
        KivVar<KivIUserSettings> settings;
    };
    // The factories that extend this component, and a new editor of each class that one of them supports.
    std::vector<KivVar<KivEditorFactory>> Factories();
    std::vector<Editor> CreateEditors();
};
