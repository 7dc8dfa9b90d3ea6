#include "Options/KivUserSettingsManager.h"

#include "Component/KivClassDictionary.h"

namespace {

// Libraries declare their factories as extensions of this component while they are loaded: it has to be
// known.
[[maybe_unused]] const KivMetaClass* const registered = KivUserSettingsManager::MetaObject();

} // namespace

std::vector<KivVar<KivEditorFactory>> KivUserSettingsManager::Factories()
{
    std::vector<KivVar<KivEditorFactory>> factories;
    for (const KivMetaClass* extension : MetaObject()->Extensions()) {
        for (const KivMetaClass* interface : KivClassDictionary::InterfacesOf(*extension)) {
            void* found = nullptr;
            if (QueryInterface(interface->Id(), &found) != S_OK) continue;
            auto* object = static_cast<KivBaseUnknown*>(found);
            if (auto* factory = dynamic_cast<KivEditorFactory*>(object)) {
                factories.push_back(KivVar<KivEditorFactory>::Adopt(factory));
            } else {
                object->Release();
            }
        }
    }
    return factories;
}

std::vector<KivUserSettingsManager::Editor> KivUserSettingsManager::CreateEditors()
{
    const std::vector<KivVar<KivEditorFactory>> factories = Factories();
    std::vector<Editor> editors;
    for (const KivMetaClass* editorClass : KivClassDictionary::ClassesWith(IID_KivIUserSettings)) {
        for (const KivVar<KivEditorFactory>& factory : factories) {
            if (!factory->Support(editorClass->Name())) continue;
            KivBaseUnknown* made = factory->Create(KivIUserSettings::Name);
            if (!made) continue;
            editors.push_back(
                {editorClass->Name(), KivVar<KivIUserSettings>::Adopt(static_cast<KivIUserSettings*>(made))});
            break;
        }
    }
    return editors;
}
