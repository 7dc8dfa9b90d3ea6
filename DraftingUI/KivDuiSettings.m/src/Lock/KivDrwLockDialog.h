#pragma once

#include "Component/KivClass.h"
#include "Lock/KivDrwLockRow.h"

class KivSettingRepository;

// A row of two cells: the padlock of a setting, and the control that edits it. A locked control stays
// disabled whatever its page asks for; pages hold the typed pointer and go through these operations, not the
// framework's of the same names, which act on the outer frame.
class KivDrwLockDialog : public KivClass<KivDrwLockDialog, KivDrwLockRow> {
public:
    static constexpr const char* Name = "KivDrwLockDialog";

    // The lock record is read from the repository, which may be null and is not owned.
    KivDrwLockDialog(KivSettingRepository* repository, const KivString& attributeName, KivDialog* parent,
                     const KivString& name);
    // The lock record is given.
    KivDrwLockDialog(KivDialog* parent, const KivString& name, const KivSettingInfo& info);

    // The wrapped control; null when there is none (any more).
    virtual KivDialog* GetDialog() const;

    // Another record of the same setting, after its lock or value may have changed.
    void SetInfo(const KivSettingInfo& info);
    // See KivDlgLock.
    void SetDescriber(const KivSettingDescriber& describer);

    void SetSensitivity(unsigned long sensitivity);
    // KivDlgDisabled without a padlock or a control, and while locked.
    unsigned long GetSensitivity() const;

protected:
    // Takes over the control that a derived class has made, as a child of this frame: binds it to the
    // padlock, places both and hands it the texts of this row.
    void Wrap(KivDialog* control);
    void Initialize();

private:
    KivSettingRepository* _repository = nullptr;
};

// A group under one padlock: pages place its controls into the frame that GetDialog answers.
class KivDrwLockFrame : public KivClass<KivDrwLockFrame, KivDrwLockDialog> {
public:
    static constexpr const char* Name = "KivDrwLockFrame";
    // The style is that of the inner frame.
    KivDrwLockFrame(KivSettingRepository* repository, const KivString& attributeName, KivDialog* parent,
                    const KivString& name, unsigned long style);
    KivDrwLockFrame(KivDialog* parent, const KivString& name, const KivSettingInfo& info,
                    unsigned long style);
};
