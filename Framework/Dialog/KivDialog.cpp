#include "Dialog/KivDialog.h"

#include "Base/KivTextCatalogue.h"
#include "Dialog/KivDlgLabel.h"
#include "Dialog/KivDlgLock.h"
#include "Dialog/KivDlgView.h"

#include <algorithm>

KivDialog::KivDialog(KivDialog* parent, const KivString& name, unsigned long)
    : KivClass(parent, name), _catalogue(parent ? parent->_catalogue : nullptr)
{
    if (parent) parent->_children.push_back(this);
}

KivDialog::~KivDialog()
{
    if (_view) _view->NodeDestroyed(*this);
    _view = nullptr;
    // Last child first; each takes itself out of the list.
    while (!_children.empty()) delete _children.back();
    if (KivDialog* parent = GetParentDialog()) std::erase(parent->_children, this);
}

KivDialog* KivDialog::FindDialog(const KivString& name)
{
    // By its own name: a lock-aware control answers GetName with that of the control it wraps.
    if (KivCommand::GetName() == name) return this;
    for (KivDialog* child : _children) {
        if (KivDialog* found = child->FindDialog(name)) return found;
    }
    return nullptr;
}

void KivDialog::SetGridConstraints(short row, short column, short rows, short columns,
                                   unsigned int attachment)
{
    _grid = {row, column, rows, columns, attachment};
}

KivUnicodeString KivDialog::CatalogueText(const char* kind) const
{
    return _catalogue ? _catalogue->Find(KivCommand::GetName() + "." + kind) : KivUnicodeString();
}

KivString KivDialog::GetResourceFile(int level) const
{
    return level <= 0 ? KivTextCatalogue::kFramework : "";
}

KivUnicodeString KivDialog::TextOf(const Text& text, const char* kind) const
{
    return text ? *text : CatalogueText(kind);
}

KivUnicodeString KivDialog::GetTitle() const
{
    KivUnicodeString title = TextOf(_title, "Title");
    return title.IsEmpty() && !_title ? KivUnicodeString(KivCommand::GetName()) : title;
}

KivUnicodeString KivDialog::GetSpokenTitle() const
{
    const KivUnicodeString own = CatalogueText("Spoken");
    const KivUnicodeString title = own.IsEmpty() ? GetTitle() : own;
    std::string spoken;
    bool marked = false;
    for (const char c : title.View()) {
        // A doubled mark stands for the character itself.
        marked = c == '&' && !marked;
        if (!marked) spoken += c;
    }
    return KivUnicodeString(std::move(spoken));
}

KivUnicodeString KivDialog::GetSpokenName() const
{
    const KivDialog* parent = GetParentDialog();
    const KivDlgLabel* label = GetLabel();
    if (!label && parent) label = parent->GetLabel();
    const KivUnicodeString title = GetSpokenTitle();
    const bool isObjectName = title == KivUnicodeString(KivCommand::GetName());
    const KivUnicodeString named = isObjectName && label ? label->GetSpokenTitle() : title;
    std::string_view name = named.View();
    while (!name.empty() && (name.back() == ':' || name.back() == ' ')) name.remove_suffix(1);
    return KivUnicodeString(name);
}

void KivDialog::Set(Text& text, const KivUnicodeString& value)
{
    text = value;
    Changed();
}

void KivDialog::SetIconName(const KivString& normal, const KivString&, const KivString&, const KivString&,
                            short)
{
    // One drawing serves all states: native views derive the others from it.
    _icon = normal;
    Changed();
}

void KivDialog::SetSensitivity(unsigned long sensitivity)
{
    if (sensitivity == _sensitivity) return;
    _sensitivity = sensitivity;
    EnablingChanged();
}

unsigned long KivDialog::GetSensitivity() const
{
    return IsKeptLocked() ? KivDlgDisabled : _sensitivity;
}

bool KivDialog::IsKeptLocked() const
{
    const KivDlgLock* lock = GetLock();
    return lock ? lock->IsLocked() : _lockedFor.has_value();
}

void KivDialog::SetVisibility(unsigned long visibility)
{
    if (visibility == _visibility) return;
    _visibility = visibility;
    VisibilityChanged();
}

bool KivDialog::IsEnabled() const
{
    const KivDialog* parent = GetParentDialog();
    return GetSensitivity() != KivDlgDisabled && (!parent || parent->IsEnabled());
}

bool KivDialog::IsShown() const
{
    const KivDialog* parent = GetParentDialog();
    return _visibility == KivDlgShown && (!parent || parent->IsShown());
}

KivUnicodeString KivDialog::WhyDisabled() const
{
    if (IsEnabled()) return {};
    if (IsKeptLocked()) return GetLock() ? GetLock()->GetReason() : *_lockedFor;
    if (_sensitivity == KivDlgDisabled) return GetUnavailableHelp();
    const KivDialog* parent = GetParentDialog();
    return parent ? parent->WhyDisabled() : KivUnicodeString();
}

KivUnicodeString KivDialog::GetTip() const
{
    if (!IsEnabled()) {
        const KivUnicodeString why = WhyDisabled();
        return why.IsEmpty() ? KivTextCatalogue::FrameworkText("NotAvailable") : why;
    }
    KivUnicodeString tip;
    for (const KivUnicodeString& help : {GetHelp(), GetShortHelp(), GetLongHelp()}) {
        if (tip.IsEmpty()) tip = help;
    }
    const KivDlgLock* lock = GetLock();
    if (!lock || !lock->IsPartlyClosed()) return tip;
    if (!tip.IsEmpty()) tip.Append("\n");
    return tip.Append(lock->GetReason());
}

KivUnicodeString KivDialog::GetFacts() const
{
    const KivDlgLock* lock = GetLock();
    return lock ? lock->GetFacts() : KivUnicodeString();
}

KivUnicodeString KivDialog::GetCommand() const
{
    const KivDlgLock* lock = GetLock();
    return lock ? lock->GetCommand() : KivUnicodeString();
}

KivDlgLock* KivDialog::GetLock() const
{
    return static_cast<KivDlgLock*>(_lock.Get());
}

KivDlgLabel* KivDialog::GetLabel() const
{
    return static_cast<KivDlgLabel*>(_label.Get());
}

void KivDialog::SetTextCatalogue(const KivString& catalogue)
{
    _catalogue = &KivTextCatalogue::Open(catalogue);
    for (KivDialog* child : _children) child->SetTextCatalogue(catalogue);
    Changed();
}

KivDialog::ChangesAsOne::~ChangesAsOne()
{
    if (_node && --_node->_held == 0) _node->Changed();
}

void KivDialog::Changed()
{
    if (_held != 0) return;
    if (_view) _view->NodeChanged(*this);
    TellPadlock();
}

void KivDialog::TellPadlock()
{
    const KivDialog* locked = this;
    while (locked && !locked->GetLock()) locked = locked->GetParentDialog();
    if (!locked || !locked->GetLock()->SpeaksOfValue()) return;
    locked->GetLock()->Changed();
    if (KivDlgLabel* label = GetLabel()) label->Changed();
}

void KivDialog::EnablingChanged()
{
    Changed();
    if (KivDlgLabel* label = GetLabel()) label->Changed();
    for (KivDialog* child : _children) child->EnablingChanged();
}
