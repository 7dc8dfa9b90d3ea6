#pragma once

#include "Dialog/KivDlgCheckButton.h"
#include "Dialog/KivDlgFrame.h"
#include "Dialog/KivDlgLabel.h"

// A row without a setting: a plain label, kept in line with the rows above and below by a spacer in the
// padlock's cell. Texts go to and come from the label; without one, from the frame.
class KivDrwLockLabel : public KivClass<KivDrwLockLabel, KivDlgFrame> {
public:
    static constexpr const char* Name = "KivDrwLockLabel";
    static constexpr const char* Framework = "DraftingUI";

    // Zero leaves the label out; the padlock's cell is kept.
    KivDrwLockLabel(KivDialog* parent, const KivString& name, int withLabel);

    KivString GetName() const override;
    // The label itself; null without one.
    KivDlgLabel* GetDialog() const { return _label.Get(); }

    void SetTitle(const KivUnicodeString& title);
    KivUnicodeString GetTitle() const;
    void SetIconName(const KivString& normal, const KivString& focused, const KivString& pressed,
                     const KivString& disabled);
    void SetHelp(const KivUnicodeString& help);
    KivUnicodeString GetHelp() const;
    void SetShortHelp(const KivUnicodeString& help);
    KivUnicodeString GetShortHelp() const;
    void SetLongHelp(const KivUnicodeString& help);
    KivUnicodeString GetLongHelp() const;

private:
    KivWeakPtr<KivDlgCheckButton> _spacer;
    KivWeakPtr<KivDlgLabel> _label;
};
