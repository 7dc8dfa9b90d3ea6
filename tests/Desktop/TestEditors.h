#pragma once

#include "Options/KivEditor.h"
#include "Options/KivEditorFactory.h"
#include "Options/KivOptionsSession.h"
#include "TestPage.h"

#include <memory>
#include <string>
#include <vector>

// Two pages of options whose settings are variables: the window's side of the options manager is real.
class TestEditor : public KivClass<TestEditor, KivEditor> {
public:
    static constexpr const char* Name = "TestEditor";
    static constexpr const char* Framework = "KivDesktop";

    void BuildEditor(KivEditorPage* onPage) override
    {
        page = onPage;
        tree = std::make_unique<TestPage>(*onPage);
    }
    void SetUserSettingsValue(KivSettingRepository*) override;
    void ResetUserSettingsValue() override { stored = 0.05; }
    void CommitModification(KivSettingRepository*) override;
    void CancelModification(KivSettingRepository*) override { log.push_back("cancel"); }
    void CloseWindowFromEditor() override { log.push_back("close"); }

    KivWeakPtr<KivEditorPage> page;
    std::unique_ptr<TestPage> tree; // as good as the page

    // What happened to all editors, and what the next commits say.
    static inline auto& log = *new std::vector<std::string>;
    static inline double stored = 0.1;
    static inline bool failing = false;
};

class OtherTestEditor : public KivClass<OtherTestEditor, TestEditor> {
public:
    static constexpr const char* Name = "OtherTestEditor";
};

// A new session over the two.
std::unique_ptr<KivOptionsSession> OpenTestSession();
