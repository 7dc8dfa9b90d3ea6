#pragma once

#include "Command/KivWeakPtr.h"
#include "Form/KivPageFrame.h"
#include "KivDrwCatalogue.h"
#include "Options/KivEditor.h"
#include "Options/KivEditorPage.h"

#include <new>
#include <type_traits>
#include <vector>

// Sees to it that the settings were gathered and committed once before a page is shown, so that a cancel
// returns to what the user saw when the dialog was opened.
class KivDrwCommitSettingEditor {
public:
    // 1 when it has just been done; 0 when it was done before or could not be.
    static int InitializeForCommit();
    // The next editor does it again.
    static void SetCommitToFalse();

private:
    static inline bool _IsCommitDone = false;
};

// What the editors of all tabs but Administration do with the repository: each change is there already, so
// that a commit only saves, a cancel rolls back, and a reset drops the user's values of the tab's keys. The
// repository that the host passes is ignored; without one of their own they do nothing. Whoever is told of
// what they do may destroy them.
class KivDrwTabEditorBase : public KivEditor {
public:
    KivDrwTabEditorBase();
    ~KivDrwTabEditorBase() override;

    void CommitModification(KivSettingRepository* ignored) override;
    void CancelModification(KivSettingRepository* ignored) override;
    void ResetUserSettingsValue() override;

protected:
    virtual std::vector<const char*> KeysToReset() const = 0;
    // What a tab tells the sketcher afterwards, when the editor may be gone; null for nothing.
    using Notify = void (*)();
    virtual Notify AfterCommit() const { return nullptr; }
    virtual Notify AfterCancel() const { return nullptr; }
    virtual Notify AfterReset() const { return nullptr; }
};

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
