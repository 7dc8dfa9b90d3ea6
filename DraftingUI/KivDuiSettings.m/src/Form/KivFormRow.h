#pragma once

#include "Dialog/KivDlgButtons.h"
#include "Dialog/KivDlgFrame.h"
#include "Form/KivControlBindings.h"
#include "Form/KivProperty.h"
#include "KivSettingKind.h"
#include "Lock/KivDrwLockCombos.h"
#include "Lock/KivDrwLockControls.h"
#include "Lock/KivDrwLockDialog.h"
#include "Lock/KivDrwLockRow.h"

class KivPageForm;

// What a spinner looks like, whatever it shows.
struct KivSpinnerLook {
    int width = 5; // characters
    unsigned long style = 0;
};

// A row of a group while it is declared, control by control from the left. A rule runs after the control's
// value was stored. The answered control belongs to the dialog tree; it is null, and its cell stays empty,
// when the form leaves out what has no lock record.
class KivFormRow {
public:
    using Rule = KivControlBinding::Rule;

    KivFormRow(KivPageForm& form, KivDlgFrame& frame, short row) : _form(form), _frame(frame), _row(row) {}

    // Where the next control stands, over how many columns, and how it is attached there.
    KivFormRow& At(short column, short columns = 1);
    KivFormRow& Attached(unsigned int attachment);

    KivDrwLockCheckButton* Check(const KivString& name, KivPropertyOf<unsigned char>& property,
                                 Rule rule = {});
    KivDrwLockCheckButton* Check(const KivString& name, KivPropertyOf<int>& property, Rule rule = {});
    KivDrwLockCheckButton* Check(const KivString& name, KivPropertyOf<int>& property,
                                 const KivSettingKind& kind); // of a switch that is on for 1 alone
    // A measure, or a whole number: what is typed for that is cut.
    KivDrwLockSpinner* Spinner(const KivString& name, KivPropertyOf<double>& property,
                               const KivSettingKind& kind, Rule rule = {}, const KivSpinnerLook& look = {});
    KivDrwLockSpinner* Spinner(const KivString& name, KivPropertyOf<int>& property,
                               const KivSettingKind& kind, Rule rule = {}, const KivSpinnerLook& look = {});
    KivDrwLockComboColor* Color(const KivString& name, KivPropertyOf<KivPageColor>& property, Rule rule = {});
    KivDrwLockCombo* Choice(const KivString& name, KivPropertyOf<int>& property, const KivSettingKind& kind,
                            unsigned long style, Rule rule = {});
    KivDrwLockCombo* Names(const KivString& name, KivPropertyOf<KivUnicodeString>& property,
                           KivFormNames names, Rule rule = {});
    // A line type and a line weight; the lock record is that of the key.
    KivDrwLockComboDashed* LineType(const KivString& name, KivPropertyOf<unsigned int>& property,
                                    KivSettingRepository* repository, const KivString& key);
    KivDrwLockComboWeight* LineWeight(const KivString& name, KivPropertyOf<unsigned int>& property,
                                      KivSettingRepository* repository, const KivString& key);
    // A button that opens something: the owner connects it.
    KivDlgPushButton* Push(const KivString& name);

    // A text that names the next control, under the padlocks' column or without it.
    KivDrwLockLabel* Label(const KivString& name);
    KivDlgLabel* PlainLabel(const KivString& name);
    // A picture without a text; its icon is to be set.
    KivDrwLockLabel* Picture(const KivString& name);
    // Leaves the padlocks' column of this cell empty.
    KivDrwLockLabel* Spacer(const KivString& name);
    // The help of the text that names this row's controls.
    KivUnicodeString LabelHelp() const;

    // A field for a text, so many characters wide.
    KivDrwLockEditor* Text(const KivString& name, KivPropertyOf<KivUnicodeString>& property, int width,
                           Rule rule = {});

private:
    KivDrwLockSpinner* BareSpinner(const KivString& name, const KivSettingInfo& info,
                                   const KivSettingKind& kind, const KivSpinnerLook& look);
    KivDrwLockCombo* BareCombo(const KivString& name, const KivSettingInfo& info, unsigned long style);
    template <class T> KivDrwLockCheckButton* CheckOf(const KivString& name, KivPropertyOf<T>& property,
                                                      bool isOnFor1Alone, Rule rule);
    // None, and the cell is passed over, when the control is left out.
    std::optional<KivSettingInfo> RecordOf(const KivProperty& property);
    void FillRange(KivDrwLockSpinner& spinner, const KivSettingKind& kind);
    void Put(KivDialog& control);
    void PutNamed(KivDrwLockDialog& wrapper, KivDlgCombo* combo);
    void Name(KivDialog* control);

    KivPageForm& _form;
    KivDlgFrame& _frame;
    short _row;
    short _column = 0;
    short _columns = 1;
    unsigned int _attachment = KivDlgAttachAllSides;
    KivWeakPtr<KivDlgLabel> _label;
};
