#include "Native/NativeComboAccessible.h"

#include "Native/NativeCombo.h"

#include <QAbstractItemView>

namespace {

QAccessibleInterface* Describe(const QString&, QObject* object)
{
    auto* const combo = dynamic_cast<NativeCombo*>(object);
    return combo ? new NativeComboAccessible(*combo) : nullptr; // Qt owns it
}

} // namespace

NativeComboAccessible::NativeComboAccessible(NativeCombo& combo)
    : QAccessibleWidget(&combo, QAccessible::ComboBox)
{}

void NativeComboAccessible::Install()
{
    QAccessible::removeFactory(&Describe);
    QAccessible::installFactory(&Describe);
}

NativeCombo& NativeComboAccessible::Combo() const
{
    return *static_cast<NativeCombo*>(widget());
}

void* NativeComboAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString NativeComboAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? Combo().SpokenValue() : QAccessibleWidget::text(kind);
}

QAccessible::State NativeComboAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = Combo().view()->isVisible();
    state.collapsed = !state.expanded;
    return state;
}

QAccessibleInterface* NativeComboAccessible::child(int index) const
{
    return index == 0 ? QAccessible::queryAccessibleInterface(Combo().view()) : nullptr;
}

int NativeComboAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    return child && child->object() == Combo().view() ? 0 : -1;
}

QStringList NativeComboAccessible::actionNames() const
{
    return {showMenuAction(), pressAction()};
}

void NativeComboAccessible::doAction(const QString& action)
{
    if (!widget()->isEnabled() || !actionNames().contains(action)) return;
    Combo().view()->isVisible() ? Combo().hidePopup() : Combo().showPopup();
}

QString NativeComboAccessible::text(int start, int end) const
{
    return Combo().SpokenValue().mid(start, end < 0 ? -1 : end - start);
}

int NativeComboAccessible::characterCount() const
{
    return static_cast<int>(Combo().SpokenValue().size());
}

QString NativeComboAccessible::attributes(int, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}
