#pragma once

#include "Dialog/KivDlgButtons.h"
#include "Dialog/KivDlgFrame.h"
#include "Dialog/KivDlgLabel.h"
#include "Dialog/KivDlgLock.h"

// What rows with and without a padlock have in common: a name and texts that are those of the object in their
// second cell, not the frame's own.
class KivDrwLockRow : public KivDlgFrame {
public:
    static constexpr const char* Framework = "DraftingUI";
    KivDrwLockRow(KivDialog* parent, const KivString& name) : KivDlgFrame(parent, name, KivDlgGridLayout) {}

    // The name of the object in the second cell, else the frame's own.
    KivString GetName() const override;

    // To and from the object in the second cell; without one the frame's own text is answered and nothing is
    // set.
    void SetTitle(const KivUnicodeString& title);
    KivUnicodeString GetTitle() const;
    void SetIconName(const KivString& normal, const KivString& focused, const KivString& pressed,
                     const KivString& disabled);

    // To the padlock, if there is one, and the object, so that both read alike.
    void SetHelp(const KivUnicodeString& help);
    KivUnicodeString GetHelp() const;
    void SetShortHelp(const KivUnicodeString& help);
    KivUnicodeString GetShortHelp() const;
    void SetLongHelp(const KivUnicodeString& help);
    KivUnicodeString GetLongHelp() const;

protected:
    KivWeakPtr<KivDialog> _dialog; // in the second cell, or null
    KivWeakPtr<KivDlgLock> _lock;  // in the first one, or null
};

// A row without a setting: a plain label, kept in line with the rows above and below by a spacer in the
// padlock's cell. Texts go to and come from the label; without one, from the frame.
class KivDrwLockLabel : public KivClass<KivDrwLockLabel, KivDrwLockRow> {
public:
    static constexpr const char* Name = "KivDrwLockLabel";

    // Zero leaves the label out; the padlock's cell is kept.
    KivDrwLockLabel(KivDialog* parent, const KivString& name, int withLabel);

    // The label itself; null without one.
    KivDlgLabel* GetDialog() const { return static_cast<KivDlgLabel*>(_dialog.Get()); }

private:
    KivWeakPtr<KivDlgCheckButton> _spacer;
};
