#pragma once

#include "Dialog/KivDlgFrame.h"
#include "Dialog/KivDlgLock.h"

class KivSettingRepository;

// A row of two cells: the padlock of a setting, and the control that edits it. A locked control stays
// disabled whatever its page asks for; pages hold the typed pointer and go through these operations, not the
// framework's of the same names, which act on the outer frame.
class KivDrwLockDialog : public KivClass<KivDrwLockDialog, KivDlgFrame> {
public:
    static constexpr const char* Name = "KivDrwLockDialog";
    static constexpr const char* Framework = "DraftingUI";

    // The lock record is read from the repository, which may be null and is not owned.
    KivDrwLockDialog(KivSettingRepository* repository, const KivString& attributeName, KivDialog* parent,
                     const KivString& name);
    // The lock record is given.
    KivDrwLockDialog(KivDialog* parent, const KivString& name, const KivSettingInfo& info);

    // The name of the wrapped control, else the frame's own.
    KivString GetName() const override;
    // The wrapped control; null when there is none (any more).
    virtual KivDialog* GetDialog() const;

    // Another record of the same setting, after its lock or value may have changed.
    void SetInfo(const KivSettingInfo& info);

    void SetSensitivity(unsigned long sensitivity);
    // KivDlgDisabled without a padlock or a control, and while locked.
    unsigned long GetSensitivity() const;

    // To and from the wrapped control; without one the frame's own text is answered and nothing is set.
    void SetTitle(const KivUnicodeString& title);
    KivUnicodeString GetTitle() const;
    void SetIconName(const KivString& normal, const KivString& focused, const KivString& pressed,
                     const KivString& disabled);

    // To the padlock and the control, so that both read alike.
    void SetHelp(const KivUnicodeString& help);
    KivUnicodeString GetHelp() const;
    void SetShortHelp(const KivUnicodeString& help);
    KivUnicodeString GetShortHelp() const;
    void SetLongHelp(const KivUnicodeString& help);
    KivUnicodeString GetLongHelp() const;

protected:
    // Takes over the control that a derived class has made, as a child of this frame: binds it to the
    // padlock, places both and hands it the texts of this row.
    void Wrap(KivDialog* control);
    void Initialize();

private:
    KivWeakPtr<KivDialog> _dialog;
    KivSettingRepository* _repository = nullptr;
    KivWeakPtr<KivDlgLock> _lock;
};
