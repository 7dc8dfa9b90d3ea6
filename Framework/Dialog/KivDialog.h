#pragma once

#include "Base/KivUnicodeString.h"
#include "Command/KivCommand.h"
#include "Dialog/KivDlgConstants.h"

#include <optional>
#include <vector>

class KivDlgLabel;
class KivDlgLock;
class KivDlgView;
class KivTextCatalogue;

// A node of the dialog tree: a frame or a control. It needs no window system; a native view may watch it. A
// parent owns its children and destroys them with itself.
//
// Texts that nobody set are looked up by the object's name in the catalogue of the nearest ancestor that
// named one (see KivTextCatalogue); a missing title shows the object's name.
class KivDialog : public KivClass<KivDialog, KivCommand> {
public:
    static constexpr const char* Name = "KivDialog";

    // Where a parent with a grid layout places a child: first cell, extent in cells, attachment (see the
    // flags).
    struct GridConstraints {
        short row = 0;
        short column = 0;
        short rows = 1;
        short columns = 1;
        unsigned int attachment = KivDlgAttachAllSides;
    };

    // The style is the toolkit's number for the looks of each class; what is seen follows from the class and
    // its grid, so that it has no effect here, nor in any class derived from this one.
    KivDialog(KivDialog* parent, const KivString& name, unsigned long style);
    ~KivDialog() override;

    KivDialog* GetParentDialog() const { return static_cast<KivDialog*>(GetParent()); }
    const std::vector<KivDialog*>& Children() const { return _children; }
    // The node of that name at or below this one, depth first; null when there is none.
    KivDialog* FindDialog(const KivString& name);

    void SetGridConstraints(short row, short column, short rows, short columns, unsigned int attachment);
    const GridConstraints& GetGridConstraints() const { return _grid; }

    // A "&" in a title stands before the letter that reaches the control from the keyboard.
    void SetTitle(const KivUnicodeString& title) { Set(_title, title); }
    KivUnicodeString GetTitle() const;
    // What a screen reader says: the text "<object name>.Spoken", which a control without a title of its own
    // has, else the title without the mark of its keyboard letter.
    KivUnicodeString GetSpokenTitle() const;
    // How it is called where it stands alone, for screen readers: its spoken title, else that of the label
    // which names it or the frame that wraps it; without the colon that leads to a field.
    virtual KivUnicodeString GetSpokenName() const;
    // The value that it shows, as a person reads it ("25 mm", "On"); empty where it shows none.
    virtual KivUnicodeString GetShownValue() const { return {}; }

    // One sentence for a tooltip, a short one for the status line, and a paragraph.
    void SetHelp(const KivUnicodeString& help) { Set(_help, help); }
    KivUnicodeString GetHelp() const { return TextOf(_help, "Help"); }
    void SetShortHelp(const KivUnicodeString& help) { Set(_shortHelp, help); }
    KivUnicodeString GetShortHelp() const { return TextOf(_shortHelp, "ShortHelp"); }
    void SetLongHelp(const KivUnicodeString& help) { Set(_longHelp, help); }
    KivUnicodeString GetLongHelp() const { return TextOf(_longHelp, "LongHelp"); }
    // When the control is available, said while the page has it disabled ("Available when … is on").
    KivUnicodeString GetUnavailableHelp() const { return CatalogueText("Unavailable"); }

    // Names of icons: normal, focused, pressed, disabled; the last three may be empty, and so may all.
    void SetIconName(const KivString& normal, const KivString& focused, const KivString& pressed,
                     const KivString& disabled, short reserved);
    const KivString& GetIconName() const { return _icon; }

    // What its page asks for: KivDlgEnabled or KivDlgDisabled. Reading answers KivDlgDisabled for a locked
    // control whatever the page asked.
    void SetSensitivity(unsigned long sensitivity);
    unsigned long GetSensitivity() const;
    void SetVisibility(unsigned long visibility);
    unsigned long GetVisibility() const { return _visibility; }

    // Whether a user can use it: asked for, not locked, and so are all its parents.
    virtual bool IsEnabled() const;
    // Whether a user can see it: neither it nor a parent is hidden.
    bool IsShown() const;
    // Why a user cannot use it, in words; empty when he can.
    KivUnicodeString WhyDisabled() const;
    // What there is to say of it: why it cannot be used while that is so, never empty then; else its help,
    // and which part of its value is locked.
    virtual KivUnicodeString GetTip() const;
    // Key, default, range and unit of the setting behind it, a line each, and the command line that gives
    // what is in force; empty without a setting.
    virtual KivUnicodeString GetFacts() const;
    virtual KivUnicodeString GetCommand() const;

    // The padlock that governs this object, and the label that names it; null without one.
    KivDlgLock* GetLock() const;
    KivDlgLabel* GetLabel() const;

    // From here downwards texts come from that catalogue.
    void SetTextCatalogue(const KivString& catalogue);
    // A text of this object's in its catalogue, under "<object name>.<kind>"; empty when there is none.
    KivUnicodeString CatalogueText(const char* kind) const;

    // The name of a catalogue for this class's texts: a class that has one of its own answers it at level 0
    // or below, and what its base answers one level lower above that. The framework's own comes last, then
    // nothing.
    virtual KivString GetResourceFile(int level) const;

    void SetView(KivDlgView* view) { _view = view; }
    KivDlgView* GetView() const { return _view; }

    // While one exists, a node's changes are told to its view as one, at the end: for long lists of lines.
    class ChangesAsOne {
    public:
        explicit ChangesAsOne(KivDialog& node) : _node(&node) { ++node._held; }
        ~ChangesAsOne();
        ChangesAsOne(const ChangesAsOne&) = delete;
        ChangesAsOne& operator=(const ChangesAsOne&) = delete;

    private:
        KivWeakPtr<KivDialog> _node;
    };

protected:
    // Tells the view, and those of the padlock and the label, which speak of what it shows.
    void Changed();
    virtual void VisibilityChanged() { Changed(); }

private:
    friend class KivDlgLock;
    friend class KivDlgLabel;
    using Text = std::optional<KivUnicodeString>;

    void Set(Text& text, const KivUnicodeString& value);
    KivUnicodeString TextOf(const Text& text, const char* kind) const;
    void EnablingChanged();
    void TellPadlock();
    bool IsKeptLocked() const;

    GridConstraints _grid;
    std::vector<KivDialog*> _children;
    const KivTextCatalogue* _catalogue; // not owned
    Text _title, _help, _shortHelp, _longHelp;
    KivString _icon;
    unsigned long _sensitivity = KivDlgEnabled;
    unsigned long _visibility = KivDlgShown;
    KivWeakPtr<KivDialog> _lock, _label;
    Text _lockedFor; // the reason that a padlock gave which is gone
    KivDlgView* _view = nullptr;
    int _held = 0; // by ChangesAsOne
};
