#pragma once

#include "Command/KivWeakPtr.h"
#include "Form/KivDrwFrameName.h"
#include "KivDrwCatalogue.h"
#include "Options/KivEditorPage.h"
#include "Tabs/KivDrwTabEditorBase.h"

#include <new>
#include <type_traits>

// The editor of a tab: Self states its Name and its Group of settings, Frame is its page frame. An editor
// without a frame leaves its page empty, and the options manager offers no empty page.
template <class Self, class Frame = void> class KivDrwTabEditor : public KivClass<Self, KivDrwTabEditorBase> {
public:
    static constexpr const char* Framework = "DraftingUI";

    // Deliberate: only factories make editors.
    static KivBaseUnknown* CreateItself() { return nullptr; }

    void BuildEditor(KivEditorPage* page) override
    {
        if constexpr (!std::is_void_v<Frame>) {
            auto* frame = new (std::nothrow) Frame(page, kKivDrwFrameName);
            _frame = frame;
            if (frame) frame->Build();
        }
    }
    void SetUserSettingsValue(KivSettingRepository*) override
    {
        if constexpr (!std::is_void_v<Frame>) {
            if (_frame) static_cast<Frame*>(_frame.Get())->Initialize();
        }
    }

protected:
    std::vector<const char*> KeysToReset() const override { return KivDrwCatalogue::ResetKeys(Self::Group); }

private:
    KivWeakPtr<KivDlgFrame> _frame; // belongs to the page, which may die first
};
